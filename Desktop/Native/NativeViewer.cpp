#include "Native/NativeViewer.h"

#include "Common/NativeText.h"
#include "Native/NativeViewerAccessible.h"
#include "Viewer/KivUserHandViewer.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QStyleOptionFrame>

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal kUsualLine = 20.0; // height of a line in fonts that the size given is meant for
constexpr qreal kCaption = 0.8;    // size of captions, as a part of that of other texts
constexpr int kLeastCaption = 9;   // pixels; smaller letters cannot be read

} // namespace

NativeViewer::NativeViewer(KivDialog& node, QWidget* parent) : QWidget(parent), NativePieceFor(node, this)
{
    NativeViewerAccessible::Install();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover); // painted anew as the pointer comes and goes
}

bool NativeViewer::CanDrag() const
{
    const Kiv2DManipulator* manipulator = TreeNode() ? TreeNode()->GetActiveManipulator() : nullptr;
    return manipulator && manipulator->GetPoint() && TreeNode()->IsEnabled();
}

void NativeViewer::ShowNode()
{
    setFocusPolicy(CanDrag() ? Qt::StrongFocus : Qt::NoFocus); // not by the wheel
    if (!CanDrag()) _grip.reset();
    if (!CanDrag()) {
        unsetCursor();
    } else {
        setCursor(_grip ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
        if (accessibleDescription().isEmpty()) {
            setToolTip(WindowText("ViewerHelp"));
            setAccessibleDescription(toolTip());
        }
    }
    update();
    if (_spoken == TreeNode()->GetValue()) return;
    _spoken = TreeNode()->GetValue();
    QAccessibleValueChangeEvent event(this, _spoken.current);
    QAccessible::updateAccessibility(&event);
}

QSize NativeViewer::sizeHint() const
{
    ensurePolished();
    if (!TreeNode()) return {};
    const qreal factor = std::max(1.0, QFontMetricsF(font()).height() / kUsualLine);
    return (QSizeF(TreeNode()->GetWidth(), TreeNode()->GetHeight()) * factor).toSize();
}

NativeGraph NativeViewer::Graph() const
{
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this) + 1;
    return NativeGraph(*TreeNode(), QRectF(rect().adjusted(frame, frame, -frame, -frame)));
}

QFont NativeViewer::CaptionFont() const
{
    QFont caption = font();
    const int pixels = static_cast<int>(std::lround(QFontInfo(caption).pixelSize() * kCaption));
    caption.setPixelSize(std::max(pixels, kLeastCaption));
    return caption;
}

void NativeViewer::paintEvent(QPaintEvent*)
{
    if (!TreeNode()) return;
    QPainter painter(this);
    NativeGraph::Look look{palette(), QPalette::Active, CaptionFont(), _grip || underMouse()};
    if (!isEnabled()) look.group = QPalette::Disabled;
    painter.fillRect(rect(), look.palette.color(look.group, QPalette::Base));
    Graph().Paint(painter, look);

    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, this);
    frame.state |= QStyle::State_Sunken;
    style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void NativeViewer::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) updateGeometry();
}

void NativeViewer::mousePressEvent(QMouseEvent* event)
{
    event->setAccepted(event->button() == Qt::LeftButton && CanDrag());
    if (!event->isAccepted()) return;
    const Kiv2DPoint before = TreeNode()->GetActiveManipulator()->GetOrigin();
    // The handle stays where it is under the pointer that takes it; from elsewhere it comes.
    const NativeGraph graph = Graph();
    const bool isOnHandle = QLineF(graph.ToWindow(before), event->position()).length() <= graph.Reach();
    const Kiv2DPoint at = isOnHandle ? graph.ToWorld(event->position()) : before;
    _grip = Grip{{before.x - at.x, before.y - at.y}, before};
    setCursor(Qt::ClosedHandCursor);
    update();
    if (!isOnHandle) DragTo(event->position());
}

void NativeViewer::mouseMoveEvent(QMouseEvent* event)
{
    if (_grip && (event->buttons() & Qt::LeftButton)) DragTo(event->position());
}

void NativeViewer::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) LetGo();
}

void NativeViewer::DragTo(const QPointF& pointer)
{
    if (!TreeNode()) return;
    // Nothing of this object may be used afterwards.
    const Kiv2DPoint at = Graph().ToWorld(pointer);
    KivUserHand::Drag(*TreeNode(), at.x + _grip->offset.x, at.y + _grip->offset.y);
}

void NativeViewer::LetGo()
{
    _grip.reset();
    Refresh();
}

void NativeViewer::keyPressEvent(QKeyEvent* event)
{
    if (!CanDrag() || (event->modifiers() & ~Qt::KeypadModifier)) return event->ignore();
    Kiv2DViewer& viewer = *TreeNode();
    const Kiv2DManipulator& manipulator = *viewer.GetActiveManipulator();
    switch (event->key()) {
    // The picture is not mirrored from right to left, and neither are the keys.
    case Qt::Key_Left:
    case Qt::Key_Down:
        KivUserHand::Step(viewer, -1);
        return;
    case Qt::Key_Right:
    case Qt::Key_Up:
        KivUserHand::Step(viewer, 1);
        return;
    case Qt::Key_Home:
        KivUserHand::Drag(viewer, manipulator.GetLeast(), manipulator.GetOrigin().y);
        return;
    case Qt::Key_End:
        KivUserHand::Drag(viewer, manipulator.GetGreatest(), manipulator.GetOrigin().y);
        return;
    case Qt::Key_Escape:
        if (_grip) {
            const Kiv2DPoint before = _grip->before;
            LetGo();
            KivUserHand::Drag(viewer, before.x, before.y);
            return;
        }
        break; // the dialog's
    default:
        break;
    }
    event->ignore();
}

void NativeViewer::wheelEvent(QWheelEvent* event)
{
    event->ignore(); // the page scrolls, also when the picture has the focus
}
