#include "Native/NativeBubble.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAccessibleEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The surface that scrolls with the field, or its window.
QWidget* SurfaceOf(QWidget& field)
{
    QWidget* surface = field.parentWidget() ? field.parentWidget() : &field;
    while (!surface->isWindow() && surface->parentWidget()) {
        const auto* area = qobject_cast<QAbstractScrollArea*>(surface->parentWidget()->parentWidget());
        if (area && area->viewport() == surface->parentWidget()) break;
        surface = surface->parentWidget();
    }
    return surface;
}

constexpr int kWidthInLetters = 44;

} // namespace

NativeBubble::NativeBubble(QWidget& field) : QFrame(SurfaceOf(field)), _field(field), _label(new QLabel(this))
{
    setObjectName("NativeBubble");
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setFocusPolicy(Qt::NoFocus);
    _label->setForegroundRole(QPalette::ToolTipText);
    _label->setTextFormat(Qt::PlainText);
    _label->setWordWrap(true);
    const int gap = fontMetrics().averageCharWidth();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(gap, gap / 2, gap, gap / 2);
    layout->addWidget(_label);
    hide();
}

void NativeBubble::Say(const QString& text)
{
    const QFontMetrics metrics(_label->font());
    const QRect widest(0, 0, kWidthInLetters * metrics.averageCharWidth(), QWIDGETSIZE_MAX);
    _label->setText(text);
    _label->setMinimumSize(metrics.boundingRect(widest, Qt::TextWordWrap, text).size() + QSize(2, 0));
    setAccessibleName(text);
    adjustSize();

    // Within what is seen of the surface.
    const QRect seen = parentWidget()->visibleRegion().boundingRect();
    const QRect field(_field.mapTo(parentWidget(), QPoint()), _field.size());
    QPoint corner(isRightToLeft() ? field.right() - width() : field.left(), field.bottom() + 1);
    if (corner.y() + height() > seen.bottom() && field.top() - height() >= seen.top())
        corner.setY(field.top() - height());
    corner.setX(std::max(seen.left(), std::min(corner.x(), seen.right() - width())));
    move(corner);
    raise();
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QString NativeBubble::Text() const
{
    return _label->text();
}
