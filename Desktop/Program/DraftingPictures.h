#pragma once

#include "Base/KivUnicodeString.h"

#include <QString>
#include <iosfwd>
#include <set>
#include <string>
#include <vector>

class DraftingWindow;
class KivDialog;
class KivDlgPushButton;
class OptionsWindow;
class QWidget;

// Draws the windows of the program into PNG files, for documentation and for looking at changes.
class DraftingPictures {
public:
    DraftingPictures(const std::string& directory, std::ostream& out, std::ostream& err);

    // The drafting window and the tab of that name, or every tab when it is empty, with the windows that its
    // buttons open. Says every file on out; false, said on err, when one could not be written or a tab has
    // nothing to show.
    bool Write(DraftingWindow& window, const KivUnicodeString& page);

private:
    bool WriteWindows(const OptionsWindow& options, const std::vector<KivDlgPushButton*>& buttons,
                      const QString& name);
    bool WriteGrayWindows(const OptionsWindow& options, const KivDialog& page, const QString& name);
    bool Save(QWidget& window, const QString& name);

    QString _directory;
    std::set<QString> _drawn;
    std::ostream& _out;
    std::ostream& _err;
};
