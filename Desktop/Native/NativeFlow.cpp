#include "Native/NativeFlow.h"

#include <algorithm>

template <class Put> int NativeFlow::Stack(int width, Put&& put) const
{
    int top = 0;
    for (int i = 0; i < count(); ++i) {
        QLayoutItem* const item = itemAt(i);
        if (item->isEmpty()) continue;
        if (top > 0) top += std::max(verticalSpacing(), 0);
        const int height =
            item->hasHeightForWidth() ? item->heightForWidth(width) : item->sizeHint().height();
        put(*item, top, height);
        top += height;
    }
    return top;
}

QSize NativeFlow::minimumSize() const
{
    QSize least = QGridLayout::minimumSize();
    const QMargins margins = contentsMargins();
    int widest = 0;
    for (int i = 0; i < count(); ++i) widest = std::max(widest, itemAt(i)->minimumSize().width());
    least.setWidth(std::min(least.width(), widest + margins.left() + margins.right()));
    return least;
}

int NativeFlow::heightForWidth(int width) const
{
    if (FitsSideBySide(width)) return QGridLayout::minimumSize().height();
    const QMargins margins = contentsMargins();
    return Stack(width - margins.left() - margins.right(), [](QLayoutItem&, int, int) {}) + margins.top() +
           margins.bottom();
}

void NativeFlow::setGeometry(const QRect& rect)
{
    if (FitsSideBySide(rect.width())) {
        QGridLayout::setGeometry(rect);
        return;
    }
    QLayout::setGeometry(rect);
    const QRect column = contentsRect();
    Stack(column.width(), [&column](QLayoutItem& item, int top, int height) {
        item.setGeometry(QRect(column.left(), column.top() + top, column.width(), height));
    });
}
