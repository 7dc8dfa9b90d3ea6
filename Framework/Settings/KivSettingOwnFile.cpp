#include "Settings/KivSettingOwnFile.h"

#include "Base/KivDiagnostic.h"
#include "Disk/KivAtomicFile.h"
#include "Disk/KivDirectoryTrouble.h"
#include "Disk/KivHiddenName.h"

#include <cerrno>
#include <climits>
#include <utility>

namespace {

// Where the links at a path lead, whether something stands there or not. A link itself must stay in place.
KivUnicodeString TargetOf(const KivUnicodeString& path)
{
    KivUnicodeString target = path;
    for (int links = 0; links < 40; ++links) {
        char text[PATH_MAX];
        const ssize_t length = readlink(target.ConvertToChar(), text, sizeof text);
        if (length <= 0) break;
        const std::string_view next(text, static_cast<std::size_t>(length));
        target = next[0] == '/' ? KivUnicodeString(next)
                                : KivUnicodeString(KivDirectoryOf(target.View())).Append(next);
    }
    return target;
}

} // namespace

KivSettingOwnFile::KivSettingOwnFile(const KivUnicodeString& path, bool isAdministrators)
    : _path(path), _isAdministrators(isAdministrators)
{}

bool KivSettingOwnFile::IsAsItWas() const
{
    if (_content.state == KivFileContent::State::Unreadable) return false;
    struct stat status {};
    if (stat(_path.ConvertToChar(), &status) != 0) {
        return errno == ENOENT && _content.state == KivFileContent::State::Absent && _file.Text().empty();
    }
    return _content.handle.IsOpen() && KivFileStamp(status) == _content.stamp;
}

bool KivSettingOwnFile::Read()
{
    if (_path.IsEmpty() || IsAsItWas()) return false;
    _content = KivReadFile(_path);
    if (KivUnicodeString trouble = DirectoryTrouble(); !trouble.IsEmpty()) {
        _content = {};
        _content.state = KivFileContent::State::Unreadable;
        _content.reason = std::move(trouble);
    }
    if (IsProtected()) {
        KivReport({KivDiagnostic::Severity::Error,
                   _content.reason + "; it is left alone, and changes cannot be saved",
                   _path,
                   0,
                   {}});
    }
    _file = KivSettingFile(std::exchange(_content.text, {}));
    _file.Report(_path);
    return true;
}

bool KivSettingOwnFile::Refuse(const KivUnicodeString& reason) const
{
    KivReport({KivDiagnostic::Severity::Error,
               KivUnicodeString("the settings were not saved: ") + reason,
               _path,
               0,
               {}});
    return false;
}

// Of the file itself and of what a link in its place leads to.
KivUnicodeString KivSettingOwnFile::DirectoryTrouble() const
{
    const KivUnicodeString directory(KivDirectoryOf(_path.View()));
    const KivUnicodeString target = TargetOf(_path);
    const KivUnicodeString targets(KivDirectoryOf(target.View()));
    KivUnicodeString trouble = KivDirectoryTrouble(directory, _isAdministrators);
    if (trouble.IsEmpty() && targets != directory) trouble = KivDirectoryTrouble(targets, _isAdministrators);
    return trouble;
}

// Keeps the damaged file byte for byte under a name of its own. Damaged lines stay in the file as well, so
// there is nothing to set aside again while it has the damage that the newest copy shows.
bool KivSettingOwnFile::SetAside(const KivFilePlace& place) const
{
    KivUnicodeString newest;
    for (int number = 1;; ++number) {
        const std::string ending = ".damaged-" + std::to_string(number);
        const KivUnicodeString aside = place.Path() + ending.c_str();
        if (access(aside.ConvertToChar(), F_OK) == 0) {
            newest = aside;
            continue;
        }
        if (!newest.IsEmpty()) {
            const KivSettingFile earlier(KivReadFile(newest).text);
            if (earlier.IsDamaged() && earlier.DamagedLines() == _file.DamagedLines()) return true;
        }
        const int error = KivWriteNewFile(place, ending, _file.Text());
        if (error == EEXIST) continue;
        if (error != 0) return Refuse(KivErrorWords("the damaged file cannot be set aside", error));
        KivReport({KivDiagnostic::Severity::Note,
                   KivUnicodeString("the damaged file was set aside as ") + aside,
                   _path,
                   0,
                   {}});
        return true;
    }
}

KivSettingOwnFile::Outcome KivSettingOwnFile::Write(const KivFileLock& lock, std::string text)
{
    const auto refuse = [this](const KivUnicodeString& reason) {
        Refuse(reason);
        return Outcome::Refused;
    };
    if (text.size() > KivMostBytes) {
        return refuse(KivUnicodeString("the file would have " + std::to_string(text.size()) +
                                       " bytes, too many to read it again"));
    }
    KivAtomicFile file(lock.Place());
    if (!file.Write(text, _isAdministrators ? 0644 : 0600)) return refuse(file.Reason());
    if (!lock.IsHeld()) return refuse(lock.Reason());
    if (!file.Rename()) return refuse(file.Reason());
    _content = {};
    _content.state = KivFileContent::State::Read;
    _content.stamp = file.Stamp();
    const bool isDurable = file.FlushDirectory();
    _owed = isDurable ? nullptr : lock.SharedPlace();
    if (!isDurable) KivReport({KivDiagnostic::Severity::Warning, file.Reason(), _path, 0, {}});
    _content.handle = file.TakeHandle();
    _file = KivSettingFile(std::move(text));
    return isDurable ? Outcome::Durable : Outcome::Visible;
}

bool KivSettingOwnFile::FlushOwed()
{
    if (_owed && _owed->Flush() == 0) _owed.reset();
    return !_owed;
}

std::shared_ptr<KivFileLock> KivSettingOwnFile::AskTurn(KivUnicodeString& trouble)
{
    if (auto turn = _turn.lock()) return turn;
    if (_path.IsEmpty()) {
        trouble = "there is no home directory, and KivUserSettingsPath names none";
        return nullptr;
    }
    const KivUnicodeString target = TargetOf(_path);
    const KivUnicodeString directory(KivDirectoryOf(target.View()));
    if (const int error = KivMakeDirectories(directory, _isAdministrators ? 0755 : 0700)) {
        trouble = KivErrorWords("the directory cannot be made", error);
        return nullptr;
    }
    trouble = DirectoryTrouble();
    if (!trouble.IsEmpty()) return nullptr;
    auto turn = std::make_shared<KivFileLock>(target);
    _turn = turn;
    return turn;
}

KivSettingOwnFile::Outcome KivSettingOwnFile::Save(const std::function<Changes(bool)>& merge)
{
    KivUnicodeString trouble;
    const std::shared_ptr<KivFileLock> lock = AskTurn(trouble);
    if (lock && (!lock->Await(LockPatience) || !lock->IsHeld())) trouble = lock->Reason();
    if (!trouble.IsEmpty()) {
        Refuse(trouble);
        return Outcome::Refused;
    }
    const bool wasRead = Read();
    if (IsProtected()) {
        Refuse(_content.reason);
        return Outcome::Refused;
    }
    const Changes changes = merge(wasRead);
    if (changes.empty()) return FlushOwed() ? Outcome::Nothing : Outcome::Visible;
    if (_file.IsDamaged() && !SetAside(lock->Place())) return Outcome::Refused;
    return Write(*lock, _file.With(changes));
}
