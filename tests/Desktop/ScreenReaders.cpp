#include "Dialog/KivDlgButtons.h"
#include "Dialog/KivDlgEditor.h"
#include "Dialog/KivDlgLabel.h"
#include "Native/NativeColorCombo.h"
#include "Native/NativeDialog.h"
#include "OptionsFixture.h"
#include "Viewer/Kiv2DViewer.h"

#include <QAccessible>
#include <QLabel>
#include <algorithm>
#include <set>

namespace {

// What a screen reader finds on the pages and in their windows.
class ScreenReaders : public OptionsFixture {
protected:
    static QAccessibleInterface& Heard(QWidget* widget)
    {
        return *QAccessible::queryAccessibleInterface(widget);
    }
    static bool IsPartner(QWidget* of, QWidget* partner, QAccessible::Relation relation)
    {
        for (const auto& [target, kind] : Heard(of).relations(relation))
            if (target && target->object() == partner) return true;
        return false;
    }
    // Of everything that is shown on a surface.
    static void CheckSurface(QWidget& surface, const std::string& where)
    {
        static constexpr std::pair<const char*, QAccessible::Role> kRoles[] = {
            {KivDlgLock::Name, QAccessible::Button},
            {KivDlgCheckButton::Name, QAccessible::CheckBox},
            {KivDlgRadioButton::Name, QAccessible::RadioButton},
            {KivDlgPushButton::Name, QAccessible::Button},
            {KivDlgSpinner::Name, QAccessible::SpinBox},
            {KivDlgEditor::Name, QAccessible::EditableText},
            {KivDlgCombo::Name, QAccessible::ComboBox},
            {Kiv2DViewer::Name, QAccessible::Slider},
        };
        std::set<QString> names;
        int controls = 0;
        for (QWidget* widget : surface.findChildren<QWidget*>()) {
            const auto* piece = dynamic_cast<NativePiece*>(widget);
            if (!piece || !widget->isVisibleTo(&surface)) continue;
            SCOPED_TRACE(where + ": " + widget->objectName().toStdString());
            const QAccessibleInterface& heard = Heard(widget);
            for (const QString& text : {heard.text(QAccessible::Name), heard.text(QAccessible::Description)})
                EXPECT_FALSE(text.contains(u'<') || text.contains("&")) << text.toStdString();
            if (auto* label = qobject_cast<QLabel*>(widget)) {
                EXPECT_TRUE(!label->buddy() || IsPartner(label, label->buddy(), QAccessible::Labelled));
                continue;
            }
            const auto role = std::find_if(std::begin(kRoles), std::end(kRoles), [&](const auto& known) {
                return piece->Node()->IsAKindOf(known.first);
            });
            if (role == std::end(kRoles)) continue;
            ++controls;
            EXPECT_EQ(heard.role(), role->second);
            const QString name = heard.text(QAccessible::Name);
            EXPECT_EQ(name.toStdString(), piece->Node()->GetSpokenName().View());
            EXPECT_TRUE(names.insert(name).second) << name.toStdString() << " is another's name";
        }
        EXPECT_GT(controls, 0) << where;
    }
};

TEST_F(ScreenReaders, FindANameAndARoleForEveryControlOfEveryPageAndWindow)
{
    for (const KivOptionsSession::Page& page : window->Session()->Pages()) {
        ASSERT_TRUE(window->ShowPage(KivUnicodeString(page.editor)));
        CheckSurface(View(), page.editor.ConvertToChar());
        for (QPushButton* button : View().findChildren<QPushButton*>()) {
            button->click();
            for (NativeDialog* opened : window->findChildren<NativeDialog*>()) {
                CheckSurface(*opened, opened->objectName().toStdString());
                opened->close();
            }
            Settle();
        }
    }
}

TEST_F(ScreenReaders, ReadAndSetValues)
{
    auto& spacing = Heard(WidgetOf("editorGridSpacing"));
    QAccessibleValueInterface* const value = spacing.valueInterface();
    ASSERT_TRUE(value);
    EXPECT_EQ(value->currentValue().toDouble(), 100.0) << "as it is shown";
    EXPECT_EQ(value->minimumValue().toDouble(), 0.0);
    EXPECT_GT(value->maximumValue().toDouble(), 1000.0);
    value->setCurrentValue(35.0);
    EXPECT_EQ(Stored("Drw_settings_GridPrimarySpacing", 0.0), 35.0);

    auto* const color = WidgetOf<NativeColorCombo>("comboBackgroundColor");
    EXPECT_EQ(Heard(color).text(QAccessible::Name), "Sheet background");
    const QString white = Heard(color).text(QAccessible::Value);
    EXPECT_TRUE(white.contains("White") && white.contains("255")) << white.toStdString();
    QAccessibleTextInterface* const text = Heard(color).textInterface();
    ASSERT_TRUE(text);
    EXPECT_EQ(text->text(0, text->characterCount()), white);
    color->setFocus();
    QTest::keyClick(color, Qt::Key_Up);
    EXPECT_NE(Heard(color).text(QAccessible::Value), white);
}

} // namespace
