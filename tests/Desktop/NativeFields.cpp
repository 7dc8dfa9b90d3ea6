#include "Native/NativeBubble.h"
#include "OptionsFixture.h"

#include <QAccessible>
#include <QLineEdit>
#include <QStyleOptionSpinBox>

namespace {

class NativeFields : public OptionsFixture {
protected:
    void Store(const char* key, double value)
    {
        Repository().WriteSetting(key, &value, 1, 0);
        window->Refill();
    }
    static QString Text(QWidget* field) { return field->findChild<QLineEdit*>()->text(); }
};

TEST_F(NativeFields, SpinnerTakesWhatTheTreeUnderstands)
{
    KivDlgSpinner& spacing = Spinner("editorGridSpacing");
    Listener entered(spacing, spacing.GetSpinnerModifyNotification());
    QWidget* const field = WidgetOf("editorGridSpacing");
    for (const auto& [text, shown] : {std::pair{"20,5", "20.5 mm"}, {"2'", "609.6 mm"}}) {
        TestHand::TypeOver(field, text);
        WidgetOf("checkGrid")->setFocus();
        EXPECT_EQ(Text(field), shown) << "leaving the field enters the text";
    }
    EXPECT_EQ(entered.heard, 2);

    // Walking through with Tab changes nothing, although fewer digits are shown than kept.
    spacing.SetValue(0.02000049, 0);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(spacing.GetValue(), 0.02000049);
    EXPECT_EQ(entered.heard, 2);

    spacing.SetValue(0.01, 0);
    QTest::keyClick(field, Qt::Key_Up);
    EXPECT_EQ(entered.heard, 3);
    EXPECT_EQ(Text(field), "15 mm");
    QStyleOptionSpinBox option;
    option.initFrom(field);
    option.subControls = QStyle::SC_All;
    const QRect down =
        field->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, field);
    QTest::mouseClick(field, Qt::LeftButton, {}, down.center());
    EXPECT_EQ(entered.heard, 4);
    EXPECT_EQ(Text(field), "10 mm");
    EXPECT_DOUBLE_EQ(Stored("Drw_settings_GridPrimarySpacing", 0.0), 10.0);
    spacing.SetVisibleTextWidth(2);
    spacing.SetValue(0.009, 0);
    const int width = field->sizeHint().width();
    spacing.SetValue(0.01, 0);
    EXPECT_EQ(field->sizeHint().width(), width) << "it grows with its value";
}

TEST_F(NativeFields, ARefusedTextStaysWithItsReasonHoweverItIsLeft)
{
    auto* const field = WidgetOf<NativeSpinner>("editorGridSpacing");
    TestHand::TypeOver(field, "<b>");
    const QImage typed = field->grab().toImage();
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_NE(field->grab().toImage(), typed) << "it looks different";
    EXPECT_TRUE(field->Refusal().contains("<b>"));
    EXPECT_EQ(field->accessibleDescription(), field->Refusal());
    EXPECT_TRUE(field->toolTip().contains(field->Refusal().toHtmlEscaped()));
    const auto* bubble = static_cast<NativeBubble*>(window->findChild<QWidget*>("NativeBubble"));
    ASSERT_TRUE(bubble && bubble->isVisible());
    EXPECT_EQ(bubble->Text(), field->Refusal());
    QTest::keyClicks(field, "0");
    EXPECT_TRUE(field->Refusal().isEmpty()) << "who types on is not blamed";
    EXPECT_FALSE(bubble->isVisible());

    TestHand::TypeOver(field, "-5");
    auto* const other = WidgetOf<NativeSpinner>("spinnerRotSnapAngle");
    const std::function<void()> ways[] = {
        [&] { QTest::keyClick(field, Qt::Key_Tab); },
        [&] { QTest::mouseClick(WidgetOf("checkRotSnapAuto"), Qt::LeftButton); },
        // Another program saves another value.
        [&] { Store("Drw_settings_GridPrimarySpacing", 50.0); },
        [&] { TestHand::TypeOver(other, "400"); },
        [&] { QTest::keyClick(other, Qt::Key_PageDown, Qt::ControlModifier); },
        [&] { window->ShowPage("General"); },
    };
    for (const auto& leave : ways) {
        leave();
        EXPECT_EQ(Text(field), "-5") << &leave - ways;
        EXPECT_FALSE(field->Refusal().isEmpty()) << &leave - ways;
    }
    EXPECT_EQ(Text(other), "400") << "several may be refused";
    EXPECT_EQ(Spinner("editorGridSpacing").GetValue(), 0.05);

    // OK leads to the first, from any page, and the field says why once more.
    window->ShowPage("Layout");
    QTest::mouseClick(Button("OK"), Qt::LeftButton);
    ASSERT_TRUE(window->isVisible());
    EXPECT_EQ(window->CurrentPage(), 0);
    EXPECT_EQ(QApplication::focusWidget(), field);
    EXPECT_TRUE(bubble->isVisible());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(Text(field), "50 mm");
    window->accept();
    EXPECT_EQ(QApplication::focusWidget(), other);
    Control("spinnerRotSnapAngle").SetSensitivity(KivDlgDisabled);
    EXPECT_EQ(Text(other), "15°") << "nobody could mend it";
    TestHand::TypeOver(field, "wide");
    QTest::mouseClick(Button("Reset"), Qt::LeftButton);
    EXPECT_EQ(Text(field), "100 mm");
    window->accept();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(NativeFields, WhatIsShownIsStoredHoweverItCameThere)
{
    const auto tell = [](QWidget* line, const char* text) {
        QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(line);
        spoken->editableTextInterface()->replaceText(0, spoken->textInterface()->characterCount(), text);
    };
    // What another program has saved meanwhile shows as soon as the field is given back.
    auto* const angle = WidgetOf<NativeSpinner>("spinnerRotSnapAngle");
    TestHand::TypeOver(angle, "30");
    Store("RotSnapAngle", 45.0);
    QTest::keyClick(angle, Qt::Key_Escape);
    QTest::qWait(0);
    EXPECT_EQ(Text(angle), "45°");

    auto* const field = WidgetOf<NativeSpinner>("editorGridSpacing");
    WidgetOf("checkGrid")->setFocus();
    tell(field, "25");
    window->Refill();
    QTest::qWait(0);
    window->ShowPage("Layout");
    tell(WidgetOf("editorTitleBlockPath"), "/tmp");
    EXPECT_EQ(Text(field), "25");
    window->accept();
    for (const char* line :
         {"GridPrimarySpacing = 25\n", "TitleBlockPath = \"/tmp\"\n", "RotSnapAngle = 45\n"})
        EXPECT_NE(box.Bytes(file).find(line), std::string::npos) << line << box.Bytes(file);
}

} // namespace
