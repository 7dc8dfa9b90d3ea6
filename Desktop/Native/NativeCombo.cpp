#include "Native/NativeCombo.h"

#include "Common/Announcement.h"
#include "Common/NativeText.h"
#include "Dialog/KivUserHand.h"
#include "Native/NativeComboAccessible.h"

#include <QPointer>
#include <QWheelEvent>

NativeCombo::NativeCombo(KivDialog& node, QWidget* parent) : QComboBox(parent), NativePieceFor(node, this)
{
    NativeComboAccessible::Install();
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
    connect(this, &QComboBox::activated, this, [this](int line) {
        const QPointer<QWidget> self(this);
        if (TreeNode()) Choose(line);
        if (!self) return;
        Refresh(); // what was refused goes back
        Announcement::Say(*this, SpokenValue());
    });
}

void NativeCombo::ShowNode()
{
    const QStringList lines = Lines();
    while (count() > lines.size()) removeItem(count() - 1);
    for (int i = 0; i < lines.size(); ++i) {
        if (i < count() && itemText(i) == lines[i]) continue;
        if (i == count()) addItem(QString());
        setItemText(i, lines[i]);
        setItemIcon(i, LineIcon(i));
    }
    setCurrentIndex(TreeNode()->GetSelect());

    const int width = VisibleWidth(), height = TreeNode()->GetVisibleTextHeight();
    setMinimumContentsLength(width);
    setSizeAdjustPolicy(width > 0 ? AdjustToMinimumContentsLengthWithIcon : AdjustToContents);
    if (height > 0) setMaxVisibleItems(height);
    if (accessibleDescription().isEmpty())
        setAccessibleDescription(WindowText("ComboHelp").arg(TreeNode()->GetLineCount()));
}

QStringList NativeCombo::Lines() const
{
    QStringList lines;
    KivUnicodeString line;
    for (int i = 0; TreeNode()->GetLine(line, i); ++i) lines << ToQt(line);
    return lines;
}

void NativeCombo::Choose(int line)
{
    KivUserHand::Choose(*TreeNode(), line);
}

void NativeCombo::wheelEvent(QWheelEvent* event)
{
    // The page scrolls unless the user has chosen this field.
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}
