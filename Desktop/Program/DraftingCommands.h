#pragma once

#include "Program/DraftingMemory.h"

#include <QObject>

#include <vector>

class KivCommandHeader;
class QAction;
class QMainWindow;
class QMenu;
class SheetView;

// The commands of the drafting window that an administrator can switch off: entries of its menus that are
// enabled while their command headers are available, and say why when they are not.
class DraftingCommands : public QObject {
public:
    // Belongs to the window, in which it says what it has done. The sheet is to live as long as the window.
    DraftingCommands(QMainWindow& window, SheetView& sheet, const DraftingMemory& memory = DraftingMemory());
    ~DraftingCommands() override;

    void AddTo(QMenu& edit, QMenu& format);

private:
    // Keeps an entry enabled as its command is available; help is the key of what it says then.
    void Govern(QAction& entry, const char* command, const char* help);
    void AddStyles(QMenu& format);
    void ShowSheetBackground(QMenu& edit);
    void Say(const QString& text);

    QMainWindow& _window;
    SheetView& _sheet;
    DraftingMemory _memory;
    std::vector<KivCommandHeader*> _headers; // the framework's
};
