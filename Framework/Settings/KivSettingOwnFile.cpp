#include "Settings/KivSettingOwnFile.h"

#include "Base/KivDiagnostic.h"
#include "Disk/KivAtomicFile.h"
#include "Disk/KivDirectoryTrouble.h"
#include "Disk/KivPath.h"
#include "Disk/KivSetAside.h"

#include <cerrno>
#include <utility>

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

void KivSettingOwnFile::Read()
{
    if (Look()) ReportSeal();
}

// False when the file is as it was.
bool KivSettingOwnFile::Look()
{
    if (_path.IsEmpty() || IsAsItWas()) return false;
    KivFileContent content = KivReadFile(_path);
    if (KivUnicodeString trouble = DirectoryTrouble(); !trouble.IsEmpty()) {
        content = {};
        content.state = KivFileContent::State::Unreadable;
        content.reason = std::move(trouble);
    }
    KivSettingFile file(std::exchange(content.text, {}));
    _content = std::move(content);
    _file = std::move(file);
    _written.reset();
    ++_version;
    if (IsProtected()) {
        KivReport({KivDiagnostic::Severity::Error,
                   _content.reason + "; it is left alone, and changes cannot be saved",
                   _path,
                   0,
                   {}});
    }
    _file.Report(_path);
    return true;
}

void KivSettingOwnFile::RestoreValues()
{
    if (_file.IsTaken()) _file = KivSettingFile(std::string(_file.Text()));
}

void KivSettingOwnFile::ReportSeal() const
{
    const bool isBroken = _file.SealState() == KivSettingSeal::State::Broken;
    if (isBroken && _isAdministrators) {
        KivReport({.text = KivSettingSeal::BrokenInLayer(_path), .file = _path});
    } else if (isBroken) {
        KivReport({.severity = KivDiagnostic::Severity::Note,
                   .text = "the file was edited by hand, or damaged: its seal does not fit; every line that "
                           "can be read is used",
                   .file = _path});
    } else if (_content.state == KivFileContent::State::Read && _file.Text().empty()) {
        KivReport({.severity = KivDiagnostic::Severity::Note, .text = "the file is empty", .file = _path});
    }
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

// A link itself stays in place. In a layer's directory, which a group may share, anybody of it could make
// one.
KivLinkTarget KivSettingOwnFile::Target() const
{
    return KivFollowLinks(_path, _isAdministrators ? KivLinkTrust::CallerAndRoot : KivLinkTrust::Everybody);
}

// Of the file itself and of what a link in its place leads to.
KivUnicodeString KivSettingOwnFile::DirectoryTrouble() const
{
    const KivUnicodeString directory(KivDirectoryOf(_path.View()));
    const KivLinkTarget target = Target();
    if (!target.trouble.IsEmpty()) return target.trouble;
    const KivUnicodeString targets(KivDirectoryOf(target.path.View()));
    KivUnicodeString trouble = KivDirectoryTrouble(directory, _isAdministrators);
    if (trouble.IsEmpty() && targets != directory) trouble = KivDirectoryTrouble(targets, _isAdministrators);
    return trouble;
}

// What no program of ours wrote as it stands, and does not mean what it says or is to mean, is kept byte for
// byte. Damaged lines stay in the file as well; under a seal that fits they were kept by the save before.
bool KivSettingOwnFile::SetAsideUnlessKept(const KivFilePlace& place) const
{
    using State = KivSettingSeal::State;
    const State seal = _file.SealState();
    const bool isKept = seal != State::Broken && (seal == State::Fits || !_file.IsDamaged());
    return isKept || SetAside(place);
}

bool KivSettingOwnFile::SetAside(const KivFilePlace& place) const
{
    KivUnicodeString where;
    const int error = KivSetAside(place, _file.Text(), where);
    if (error != 0) return Refuse(KivErrorMessage("the file as it was cannot be set aside", error));
    if (!where.IsEmpty()) {
        KivReport({.severity = KivDiagnostic::Severity::Note,
                   .text = KivUnicodeString("the file as it was was set aside as ") + where,
                   .file = _path});
    }
    return true;
}

KivSettingOwnFile::Receipt KivSettingOwnFile::Write(const KivFileLock& lock, KivSettingEdit next)
{
    const auto refuse = [this](const KivUnicodeString& reason) {
        Refuse(reason);
        return Receipt::Refused;
    };
    if (const KivUnicodeString trouble = KivSizeTrouble(*next.text); !trouble.IsEmpty())
        return refuse(trouble);
    _file.Prepare(next);
    KivAtomicFile file(lock.Place());
    if (!file.Write(*next.text, _isAdministrators ? 0644 : 0600)) return refuse(file.Reason());
    if (!lock.IsHeld()) return refuse(lock.Reason());
    if (!file.Rename()) return refuse(file.Reason());
    _content = {};
    _content.state = KivFileContent::State::Read;
    _content.stamp = file.Stamp();
    _written = _file.Become(std::move(next));
    ++_version;
    const bool isDurable = file.FlushDirectory();
    _owed = isDurable ? nullptr : lock.SharedPlace();
    if (!isDurable) KivReport({KivDiagnostic::Severity::Warning, file.Reason(), _path, 0, {}});
    _content.handle = file.TakeHandle();
    return isDurable ? Receipt::Durable : Receipt::Visible;
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
    const KivLinkTarget target = Target();
    const KivUnicodeString directory(KivDirectoryOf(target.path.View()));
    trouble = target.trouble.IsEmpty() ? KivMakingTrouble(directory) : target.trouble;
    if (!trouble.IsEmpty()) return nullptr;
    if (const int error = KivMakeDirectories(directory, _isAdministrators ? 0755 : 0700)) {
        trouble = KivErrorMessage("the directory cannot be made", error);
        return nullptr;
    }
    trouble = DirectoryTrouble();
    if (!trouble.IsEmpty()) return nullptr;
    auto turn = std::make_shared<KivFileLock>(target.path);
    _turn = turn;
    return turn;
}

KivSettingOwnFile::Receipt
KivSettingOwnFile::UnderLock(const std::function<Receipt(const KivFileLock& lock)>& work)
{
    KivUnicodeString trouble;
    const std::shared_ptr<KivFileLock> lock = AskTurn(trouble);
    if (lock && (!lock->Await(LockPatience) || !lock->IsHeld())) trouble = lock->Reason();
    if (!trouble.IsEmpty()) {
        Refuse(trouble);
        return Receipt::Refused;
    }
    Look();
    if (IsProtected()) {
        Refuse(_content.reason);
        return Receipt::Refused;
    }
    return work(*lock);
}

KivSettingOwnFile::Receipt KivSettingOwnFile::Save(const Merge& merge)
{
    return UnderLock([&](const KivFileLock& lock) {
        if (_isAdministrators && _file.SealState() == KivSettingSeal::State::Broken) {
            Refuse(KivSettingSeal::BrokenInLayer(_path));
            return Receipt::Refused;
        }
        if (_isAdministrators && _content.state == KivFileContent::State::Read && _file.Text().empty()) {
            Refuse("the file is empty, as if it had been cut off; remove it to begin the layer anew");
            return Receipt::Refused;
        }
        const Changes changes = merge();
        if (changes.empty()) return FlushOwed() ? Receipt::Nothing : Receipt::Visible;
        if (!SetAsideUnlessKept(lock.Place())) return Receipt::Refused;
        return Write(lock, _file.With(changes));
    });
}

KivSettingOwnFile::Receipt KivSettingOwnFile::Mend()
{
    return UnderLock([&](const KivFileLock& lock) {
        if (!_file.IsDamaged()) return FlushOwed() ? Receipt::Nothing : Receipt::Visible;
        if (_file.IsOfAnotherVersion()) {
            Refuse("the file is of another version; a newer program may be able to read it");
            return Receipt::Refused;
        }
        if (!SetAside(lock.Place())) return Receipt::Refused;
        return Write(lock, _file.WithoutDamage());
    });
}

KivSettingOwnFile::Receipt KivSettingOwnFile::Seal()
{
    return UnderLock([&](const KivFileLock& lock) {
        if (_file.SealState() == KivSettingSeal::State::Fits) return Receipt::Nothing;
        const char* const trouble =
            _content.state == KivFileContent::State::Absent ? "there is no such file"
            : _file.Text().empty() ? "the file is empty; the line \"# kivsettings 1\" alone withdraws a layer"
            : _file.IsDamaged()    ? "the file has damaged lines, which are to be mended first"
                                   : nullptr;
        if (!trouble) return Write(lock, _file.With({}));
        Refuse(trouble);
        return Receipt::Refused;
    });
}
