#pragma once

#include "Base/KivString.h"

#include <QStyle>
#include <QWidget>

// A part of a surface that shows an icon. Empty, but as large, when the icon is missing; as wide still when
// none is named, for surfaces that align with others.
class IconView : public QWidget {
public:
    // The size is a style's metric, as QStyle::PM_LargeIconSize.
    IconView(QStyle::PixelMetric size, QWidget* parent);

    void SetIcon(const KivString& name);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStyle::PixelMetric _size;
    KivString _name;
};
