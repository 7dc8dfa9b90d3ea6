#pragma once

#include "Base/KivUnicodeString.h"

#include <QPointer>
#include <memory>

class KivOptionsSession;
class OptionsWindow;
class QWidget;

// Opens the options window, one at a time.
class DraftingOptions {
public:
    // A new opening of the options, with the pages of every library that was loaded.
    static std::unique_ptr<KivOptionsSession> NewSession();

    ~DraftingOptions();

    // Opens it, or brings the open one to the front, on the page of a name; an empty name stands for the page
    // that was shown last. It opens beside the sheet and belongs to its window. What is said while it opens
    // goes to whoever listens.
    OptionsWindow& Open(QWidget& sheet, const KivUnicodeString& page = {});
    // Takes back what was changed in an open one, and closes it.
    void Cancel();

    // Null while none is open.
    OptionsWindow* Current() const;

private:
    QPointer<OptionsWindow> _window;
};
