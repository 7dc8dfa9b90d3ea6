#pragma once

#include <QGridLayout>

// A grid of groups. Where they have not the width that they need side by side, they go below one another, in
// reading order.
class NativeFlow : public QGridLayout {
public:
    using QGridLayout::QGridLayout;

    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    int minimumHeightForWidth(int width) const override { return heightForWidth(width); }
    void setGeometry(const QRect& rect) override;

private:
    bool FitsSideBySide(int width) const { return width >= QGridLayout::minimumSize().width(); }
    // Where each of them stands in a column of that width; answers the height of all, without margins.
    template <class Put> int Stack(int width, Put&& put) const;
};
