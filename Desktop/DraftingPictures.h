#pragma once

#include "Base/KivUnicodeString.h"

#include <QString>
#include <iosfwd>
#include <string>

class DraftingWindow;
class KivDialog;
class OptionsWindow;
class QWidget;

// Draws the windows of the program into PNG files, for documentation and for looking at changes.
class DraftingPictures {
public:
    DraftingPictures(const std::string& directory, std::ostream& out, std::ostream& err);

    // The drafting window and the tab of that name, or every tab when it is empty, with the windows that its
    // buttons open. Says every file on out;
    // false, said on err, when one could not be written.
    bool Write(DraftingWindow& window, const KivUnicodeString& page);

private:
    bool WriteWindows(const OptionsWindow& options, const KivDialog& page, const QString& name);
    bool Save(QWidget& window, const QString& name);

    QString _directory;
    std::ostream& _out;
    std::ostream& _err;
};
