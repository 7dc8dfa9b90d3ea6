#pragma once

#include <QScrollArea>

// What scrolls the controls of a page or a window: whatever gets the focus is seen. It takes none itself.
class NativeScrollArea : public QScrollArea {
public:
    explicit NativeScrollArea(QWidget* parent);
};
