#pragma once

#include <QDialog>
#include <QIcon>

class QGridLayout;

// The General page as a Qt programmer would write it by hand, with padlocks, icons and tooltips but no
// settings behind it: what the first paint of the real dialog is measured against.
class HandWrittenDialog : public QDialog {
public:
    HandWrittenDialog();

private:
    QGridLayout* AddGroup(const char* title, const char* icon);
    void AddLock(QGridLayout* grid, int row, int column);
    void AddCheck(QGridLayout* grid, int row, int column, const char* title, bool on);
    void AddSpinner(QGridLayout* grid, int row, int column, double value, const char* suffix);
    void AddColor(QGridLayout* grid, int row, int column);
    void AddLabel(QGridLayout* grid, int row, const char* title);

    class QVBoxLayout* _page;
    QIcon _padlock; // drawn once for all rows
};
