#pragma once

#include "Disk/KivFileContent.h"
#include "Settings/KivSettingFile.h"

#include <functional>
#include <vector>

// The one file that a repository writes: the user's, or that of the administrator layer being edited.
class KivSettingOwnFile {
public:
    enum class Outcome { Nothing, Durable, Visible, Refused };
    using Changes = std::vector<KivSettingChange>;

    // The path is empty when there is no place for the file.
    KivSettingOwnFile(const KivUnicodeString& path, bool isAdministrators);

    // Reads the file unless it is as it was when it was read or written last. True when it was read.
    bool Read();

    const KivUnicodeString& Path() const { return _path; }
    const KivSettingFile& File() const { return _file; }

    // The file is there but cannot be read.
    bool IsProtected() const { return _content.state == KivFileContent::State::Unreadable; }

    // Puts changes on top of what is on disk now, which another process may have changed: it is read first,
    // under the lock. Only then merge is asked for the changes, and told whether the file was read; it is not
    // asked when the file cannot be written. Refused says why and leaves the disk as it was.
    Outcome Save(const std::function<Changes(bool wasRead)>& merge);

private:
    bool IsAsItWas() const;
    KivUnicodeString DirectoryTrouble() const;
    bool Refuse(const KivUnicodeString& reason) const;
    bool MakeDirectory(const KivUnicodeString& target) const;
    bool SetAside(const KivUnicodeString& target) const;
    bool Write(const KivUnicodeString& target, std::string text, bool& isDurable);

    KivUnicodeString _path;
    bool _isAdministrators;
    KivFileContent _content; // without its text, which is the file's
    KivSettingFile _file;
};
