#include "Native/NativeLabel.h"

#include "Common/IconStore.h"
#include "Common/NativeText.h"
#include "Dialog/KivDlgLock.h"

#include <QPainter>
#include <QStyle>

namespace {

// The widget of a control; of a frame that wraps one, that of the control in it.
QWidget* FieldOf(const KivDialog* control)
{
    if (!control || control->IsAKindOf(KivDlgLock::Name)) return nullptr;
    const NativePiece* piece = NativePiece::Of(control);
    if (piece && piece->Widget()) return piece->Widget();
    for (const KivDialog* child : control->Children()) {
        if (QWidget* field = FieldOf(child)) return field;
    }
    return nullptr;
}

} // namespace

NativeLabel::NativeLabel(KivDialog& node, QWidget* parent) : QLabel(parent), NativePieceFor(node, this) {}

void NativeLabel::ShowNode()
{
    QWidget* field = FieldOf(TreeNode()->GetLabeledControl());
    if (buddy() != field) setBuddy(field);
    // Without a field to lead to, the mark of the letter would be shown as it stands.
    setTextFormat(Qt::PlainText);
    setText(ToQt(field ? TreeNode()->GetTitle() : TreeNode()->GetSpokenTitle()));
    updateGeometry();
    update();
}

QSize NativeLabel::sizeHint() const
{
    return Icon().IsEmpty() ? QLabel::sizeHint() : IconStore::Shared().Size(Icon());
}

void NativeLabel::paintEvent(QPaintEvent* event)
{
    if (Icon().IsEmpty()) {
        QLabel::paintEvent(event);
        return;
    }
    const QSize size = sizeHint();
    const QPixmap picture = IconStore::Shared().Picture(Icon(), (QSizeF(size) * devicePixelRatioF()).toSize(),
                                                        palette().color(QPalette::WindowText));
    const QRect target =
        style()->alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, size, rect());
    if (!picture.isNull()) QPainter(this).drawPixmap(target, picture);
}
