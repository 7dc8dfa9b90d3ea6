#include "Native/NativePadlock.h"

#include "Common/NativeText.h"
#include "Dialog/KivDlgFrame.h"
#include "Dialog/KivUserHand.h"
#include "Native/NativePanel.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace {

constexpr qreal kGrid = 16.0; // the drawing is made on a grid of so many units
constexpr qreal kPale = 0.45;

enum class Look { Open, Partly, Closed };

// The shackle stands on the body on both sides, or is swung up on its right foot; the body of one that is
// closed in part is filled in part.
void DrawPadlock(QPainter& painter, Look look, QColor ink)
{
    const bool locked = look != Look::Open;
    const QRectF body(2.5, 7.5, 11.0, 7.0);
    QPainterPath shackle;
    if (locked) {
        shackle.moveTo(5.0, 7.5);
        shackle.lineTo(5.0, 5.0);
        shackle.arcTo(QRectF(5.0, 1.5, 6.0, 6.0), 180.0, -180.0);
        shackle.lineTo(11.0, 7.5);
    } else {
        ink.setAlphaF(static_cast<float>(kPale));
        shackle.moveTo(9.0, 7.5);
        shackle.lineTo(9.0, 4.5);
        shackle.arcTo(QRectF(9.0, 1.0, 6.0, 6.0), 180.0, -180.0);
        shackle.lineTo(15.0, 5.5);
    }
    painter.setPen(QPen(ink, locked ? 1.6 : 1.2, Qt::SolidLine, Qt::FlatCap));
    painter.drawPath(shackle);
    if (look != Look::Closed) painter.drawRoundedRect(body, 1.0, 1.0);
    if (look == Look::Partly) painter.fillRect(QRectF(2.5, 7.5, 5.5, 7.0), ink);
    if (look != Look::Closed) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    QPainterPath plate;
    plate.addRoundedRect(QRectF(2.0, 7.0, 12.0, 8.0), 1.2, 1.2);
    QPainterPath keyhole;
    keyhole.addEllipse(QPointF(8.0, 10.2), 1.3, 1.3);
    keyhole.addRect(QRectF(7.4, 10.2, 1.2, 3.0));
    painter.drawPath(plate.subtracted(keyhole));
}

// A dot beside the shackle: the layer that is edited gives the value.
void DrawSetHere(QPainter& painter, const QColor& ink)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(QPointF(2.2, 3.0), 2.0, 2.0);
}

} // namespace

NativePadlock::NativePadlock(KivDialog& node, QWidget* parent)
    : QAbstractButton(parent), NativePieceFor(node, this)
{
    // As high as what it governs.
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
    connect(this, &QAbstractButton::clicked, this, [this] { Pressed(); });
}

QSize NativePadlock::PadlockSize(const QWidget& widget)
{
    const QStyle& style = *widget.style();
    const int frame = 2 * style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &widget);
    const int extent = style.pixelMetric(QStyle::PM_SmallIconSize, nullptr, &widget) + frame;
    return {extent, extent};
}

void NativePadlock::ShowNode()
{
    const bool isSwitch = IsSwitch();
    setFocusPolicy(IsClosed() || IsPartlyClosed() || isSwitch ? Qt::StrongFocus : Qt::NoFocus);
    // What can be checked is a switch to screen readers.
    setCheckable(isSwitch);
    setChecked(isSwitch && IsClosed());
    setWhatsThis(WindowText(isSwitch ? "PadlockSwitchHelp" : "PadlockHelp"));
    if (_panel) _panel->Say(accessibleName(), ToQt(TreeNode()->GetReport()), ToQt(TreeNode()->GetCommand()));
    update();
}

void NativePadlock::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int extent = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((width() - extent) / 2, (height() - extent) / 2);
    painter.scale(extent / kGrid, extent / kGrid);
    if (isRightToLeft()) {
        painter.translate(kGrid, 0.0);
        painter.scale(-1.0, 1.0);
    }
    const Look look = IsClosed() ? Look::Closed : IsPartlyClosed() ? Look::Partly : Look::Open;
    DrawPadlock(painter, look, palette().color(QPalette::Active, QPalette::WindowText));
    if (TreeNode() && TreeNode()->IsSetHere())
        DrawSetHere(painter, palette().color(QPalette::Active, QPalette::WindowText));
    painter.restore();
    if (GovernsRows()) DrawBar(painter);
    if (!hasFocus()) return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

// Whether a frame of several controls is under it, not just one control.
bool NativePadlock::GovernsRows() const
{
    const KivDialog* governed = TreeNode() ? TreeNode()->GetAssociatedDialog() : nullptr;
    return governed && governed->IsAKindOf(KivDlgFrame::Name);
}

// Along the rows that the padlock governs together.
void NativePadlock::DrawBar(QPainter& painter) const
{
    QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
    ink.setAlphaF(static_cast<float>(kPale));
    painter.fillRect(QRect(isRightToLeft() ? 0 : width() - 1, 0, 1, height()), ink);
}

void NativePadlock::keyPressEvent(QKeyEvent* event)
{
    // Elsewhere in the dialog this key means OK.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

void NativePadlock::Pressed()
{
    if (IsSwitch()) {
        KivUserHand::Press(*TreeNode());
    } else if (IsClosed() || IsPartlyClosed()) {
        _panel = NativePanel::Open(*this, accessibleName(), ToQt(TreeNode()->GetReport()),
                                   ToQt(TreeNode()->GetCommand()));
    }
}
