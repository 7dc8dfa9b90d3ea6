#pragma once

#include "Base/KivDiagnostic.h"
#include "Settings/KivSettingFile.h"

#include <map>
#include <string>
#include <vector>

// Goes over the files of all layers, outermost first, line by line: what is wrong, and what has no effect and
// why.
class LayerCheck {
public:
    // How the locks of a file count.
    enum class Locks { Enforced, Trial, UsersOwn };

    // Takes one file. It need not be there.
    void Take(const KivUnicodeString& path, Locks locks);
    // Takes what somebody else found, once.
    void Add(const KivDiagnostic& finding);

    const std::vector<KivDiagnostic>& Findings() const { return _findings; }
    // Some file is there, but could not be read.
    bool IsUnreadable() const { return _isUnreadable; }
    int Files() const { return _files; }

private:
    struct Place {
        KivUnicodeString path;
        int line = 0;
    };
    void CheckLine(const KivSettingLine& line);
    void CheckValue(const KivSettingLine& line);
    void CheckLock(const KivSettingLine& line);
    void CheckTwice(const KivSettingLine& line);
    void Say(const KivSettingLine& line, const std::string& text,
             KivDiagnostic::Severity severity = KivDiagnostic::Severity::Warning);
    // The lock of a layer further out, or null.
    const Place* LockOutside(const std::string& key) const;

    std::vector<KivDiagnostic> _findings;
    std::map<std::string, Place, std::less<>> _outer; // who locks a key, outermost
    bool _isUnreadable = false;
    int _files = 0;

    // Of the file being looked at.
    KivUnicodeString _path;
    Locks _locks = Locks::Enforced;
    std::map<std::string, Place, std::less<>> _own;      // its locks
    std::map<std::string, int, std::less<>> _valueLines; // the line of a key's value before
};
