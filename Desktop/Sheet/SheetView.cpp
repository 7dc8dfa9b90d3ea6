#include "Sheet/SheetView.h"

#include "Common/Announcement.h"
#include "Common/NativeText.h"
#include "Parameter/KivParmEngine.h"
#include "Sheet/SheetGrid.h"
#include "Sheet/SheetPicture.h"
#include "Sheet/SheetRotation.h"
#include "Sheet/SheetRulers.h"
#include "Sheet/SheetUnit.h"

#include <QAccessible>
#include <QPainter>
#include <QtMath>
#include <utility>

SheetView::SheetView(const SheetSettings& settings, QWidget* parent) : QWidget(parent), _settings(settings)
{
    setObjectName("sheet");
    setAccessibleName(DraftingText("SheetName"));
    setAccessibleDescription(DraftingText("SheetDescription"));
    setWhatsThis(accessibleDescription());
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    _camera.SetResolution(logicalDpiX() / 25.4);
    SetFormat(SheetFormat::Named("A3"), true);
    connect(&_settings, &SheetSettings::Changed, this, [this] {
        Arrange();
        PointAt(_cursor);
    });
    _unitListener = KivParmEngine::Instance().AddListener([this](const KivParmMagnitude&) {
        Redraw();
        PointAt(_cursor);
    });
}

SheetView::~SheetView()
{
    KivParmEngine::Instance().RemoveListener(_unitListener);
}

void SheetView::SetFormat(const SheetFormat& format, bool isLandscape)
{
    _format = QString::fromUtf8(format.name);
    _camera.SetSheet(format.Size(isLandscape));
    Moved();
}

SheetPicture SheetView::Picture() const
{
    return {Style(), Sketch(), _look, _camera, _rotation, _format};
}

void SheetView::SetLook(const SheetLook& look)
{
    if (look == _look) return;
    const bool wasBackground = std::exchange(_look, look).isBackground;
    if (wasBackground != look.isBackground) SelectView(wasBackground);
    Redraw();
}

void SheetView::SetRotation(double degrees)
{
    const double angle = SheetRotation::Normal(degrees);
    if (angle == _rotation) return;
    _rotation = angle;
    Redraw();
    emit RotationChanged(angle);
    QAccessibleValueChangeEvent changed(this, angle);
    QAccessible::updateAccessibility(&changed);
    // Readers do not say what a dial has come to.
    if (hasFocus()) Announcement::Say(*this, SheetUnit::PrintAngle(angle));
}

void SheetView::SelectView(bool selected)
{
    _selected = selected && !_look.isBackground;
    ShowCursor();
    update();
}

void SheetView::ZoomToFit()
{
    _camera.Fit();
    Moved();
}

void SheetView::ZoomTo(double zoom)
{
    _camera.ZoomTo(zoom);
    Moved();
}

void SheetView::ZoomBy(double factor)
{
    _camera.ZoomBy(factor, _cursor.value_or(_camera.Area().center()));
    Moved();
}

QPointF SheetView::Handle() const
{
    return SheetMarkers::HandleAt(Picture().ViewFrame());
}

QRectF SheetView::SketchFrame() const
{
    return Picture().SketchFrame();
}

// The rulers take their part of the window while they are shown.
void SheetView::Arrange()
{
    const double ruler = Style().rulers ? SheetRulers::Thickness(font()) : 0.0;
    _camera.SetArea(QRectF(rect()).adjusted(ruler, ruler, 0.0, 0.0));
    Moved();
}

void SheetView::Moved()
{
    Redraw();
    PointAt(_cursor);
    emit ZoomChanged(_camera.Zoom());
}

void SheetView::Redraw()
{
    _layer = QPixmap();
    update();
}

std::optional<QPointF> SheetView::SnappedPosition() const
{
    if (!_cursor) return std::nullopt;
    const QPointF position = _camera.ToSheet(*_cursor);
    const QSizeF sheet = _camera.Sheet();
    if (!QRectF(QPointF(0.0, 0.0), sheet).contains(position)) return std::nullopt;
    if (!Style().snapsToGrid) return position;
    return QPointF(SheetGrid(Style().spacingH, Style().partsH).Nearest(position.x(), sheet.width()),
                   SheetGrid(Style().spacingV, Style().partsV).Nearest(position.y(), sheet.height()));
}

void SheetView::PointAt(std::optional<QPointF> window)
{
    _cursor = window;
    const std::optional<QPointF> position = SnappedPosition();
    emit PositionChanged(
        position ? DraftingText("Position")
                       .arg(SheetUnit::Print(position->x(), 2), SheetUnit::Print(position->y(), 2))
                 : QString());
    update();
}

bool SheetView::IsOnHandle(QPointF window) const
{
    return _selected && QLineF(window, Handle()).length() <= SheetMarkers::kHandleRadius + 4.0;
}

// Of the line from the view's origin to a position in the window; anticlockwise, 0 upwards.
double SheetView::AngleOf(QPointF window) const
{
    const QPointF from = Picture().ViewCenter();
    return qRadiansToDegrees(std::atan2(from.x() - window.x(), from.y() - window.y()));
}

void SheetView::ShowCursor()
{
    if (_hand == Hand::Panning || _hand == Hand::Turning)
        setCursor(Qt::ClosedHandCursor);
    else if (_spaceHeld)
        setCursor(Qt::OpenHandCursor);
    else if (_cursor && IsOnHandle(*_cursor))
        setCursor(Qt::PointingHandCursor);
    else
        setCursor(Qt::CrossCursor);
}

void SheetView::PaintLayer()
{
    const double density = devicePixelRatioF();
    _layer = QPixmap((QSizeF(size()) * density).toSize());
    _layer.setDevicePixelRatio(density);
    // A desk that is darker than paper in both schemes, so that a sheet of any color lies on it.
    const QColor window = palette().color(QPalette::Window);
    _layer.fill(window.lightness() < 128 ? window.darker(140) : window.darker(128));
    QPainter painter(&_layer);
    painter.setFont(font());
    painter.setClipRect(_camera.Area());
    Picture().Paint(painter);
}

void SheetView::paintEvent(QPaintEvent*)
{
    if (_layer.isNull() || _layer.devicePixelRatio() != devicePixelRatioF()) PaintLayer();
    QPainter painter(this);
    painter.drawPixmap(0, 0, _layer);
    if (Style().rulers) SheetRulers(_camera, font(), palette()).Paint(painter, _cursor);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(_camera.Area());
    PaintOverlay(painter);
}

void SheetView::PaintOverlay(QPainter& painter) const
{
    const SheetPicture picture = Picture();
    const SheetMarkers markers(palette(), font(), SheetColors(Style().sheet, Style().sheetGraduated));
    if (_selected) {
        using State = SheetMarkers::HandleState;
        const bool isHot = _cursor && IsOnHandle(*_cursor);
        if (_hand == Hand::Turning) markers.PaintTurn(painter, picture.ViewCenter(), Handle(), _rotation);
        markers.PaintHandle(painter, picture.ViewFrame(),
                            _hand == Hand::Turning ? State::Dragged
                            : isHot                ? State::Hot
                                                   : State::Idle);
        if (_hand == Hand::Turning)
            markers.PaintAngle(painter, Handle(), _camera.Area(), SheetUnit::PrintAngle(_rotation));
    }
    if (_hand != Hand::Free || _spaceHeld) return;
    if (_cursor) picture.PaintPick(painter, *_cursor);
    if (const std::optional<QPointF> position = SnappedPosition())
        markers.PaintCross(painter, _camera.ToWindow(*position), Style().snapsToGrid);
    if (hasFocus() && _showsFocus) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(_camera.Area().adjusted(0.0, 0.0, -1.0, -1.0));
    }
}
