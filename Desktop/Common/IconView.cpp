#include "Common/IconView.h"

#include "Common/IconStore.h"

#include <QPainter>

IconView::IconView(QStyle::PixelMetric size, QWidget* parent) : QWidget(parent), _size(size)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void IconView::SetIcon(const KivString& name)
{
    if (name == _name) return;
    _name = name;
    updateGeometry();
    update();
}

QSize IconView::sizeHint() const
{
    const int extent = style()->pixelMetric(_size, nullptr, this);
    return {extent, _name.IsEmpty() ? 0 : extent};
}

void IconView::paintEvent(QPaintEvent*)
{
    const QPixmap picture = IconStore::Shared().Picture(
        _name, (QSizeF(size()) * devicePixelRatioF()).toSize(), palette().color(QPalette::WindowText));
    if (!picture.isNull()) QPainter(this).drawPixmap(rect(), picture);
}
