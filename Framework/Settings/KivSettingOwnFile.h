#pragma once

#include "Disk/KivFileContent.h"
#include "Disk/KivFileLock.h"
#include "Disk/KivLinkTarget.h"
#include "Settings/KivSettingFile.h"
#include "Settings/KivSettingRepository.h"

#include <functional>
#include <memory>
#include <vector>

// The one file that a repository writes: the user's, or that of the administrator layer being edited.
class KivSettingOwnFile {
public:
    using Receipt = KivSettingRepository::Receipt;
    using Changes = std::vector<KivSettingChange>;
    using Merge = std::function<Changes()>;

    // The path is empty when there is no place for the file.
    KivSettingOwnFile(const KivUnicodeString& path, bool isAdministrators);

    // Reads the file unless it is as it was when it was read or written last.
    void Read();

    const KivUnicodeString& Path() const { return _path; }
    const KivSettingFile& File() const { return _file; }
    KivSettingValue TakeValue(std::size_t line) { return _file.TakeValue(line); }
    // Has the values of the lines once more, after they were taken.
    void RestoreValues();
    // Another one whenever the file has been read or written.
    unsigned Version() const { return _version; }
    // The lines, without values, by which the file differs from the one of that version; null when more may
    // have changed.
    const std::vector<KivSettingLine>* WrittenSince(unsigned version) const
    {
        return _written && version + 1 == _version ? &*_written : nullptr;
    }

    // The file is there but cannot be read.
    bool IsProtected() const { return _content.state == KivFileContent::State::Unreadable; }

    // Puts changes on top of what is on disk now, which another process may have changed: it is read first,
    // under the lock. Only then merge is asked for the changes; it is not asked when the file cannot be
    // written. Refused says why and leaves the disk as it was.
    // Where another program saves, it waits for it, for three seconds at most.
    Receipt Save(const Merge& merge);

    // Seals the file as it stands, unless its seal fits. Refused says why: no layer's file would be believed
    // that is damaged or empty.
    Receipt Seal();

    // Writes the file without its damaged lines, after the bytes as they were have been set aside; Nothing
    // when no line is damaged. A layer's file is sealed with it. A file of another version is refused: who
    // wrote it may understand what this one does not.
    Receipt Mend();

    // Asks for the lock without waiting. As long as the answer is kept, every save uses it. Null, and why,
    // when there is nowhere to save to.
    std::shared_ptr<KivFileLock> AskTurn(KivUnicodeString& trouble);
    // How long a save waits for the lock since it was asked for.
    static constexpr std::chrono::milliseconds LockPatience{3000};

    // Flushes what an earlier save could not. False when it still cannot be.
    bool FlushOwed();

private:
    bool IsAsItWas() const;
    bool Look();
    void ReportSeal() const;
    Receipt UnderLock(const std::function<Receipt(const KivFileLock& lock)>& work);
    KivLinkTarget Target() const;
    KivUnicodeString DirectoryTrouble() const;
    bool Refuse(const KivUnicodeString& reason) const;
    bool SetAside(const KivFilePlace& place) const;
    bool SetAsideUnlessKept(const KivFilePlace& place) const;
    Receipt Write(const KivFileLock& lock, KivSettingEdit next);

    KivUnicodeString _path;
    bool _isAdministrators;
    unsigned _version = 0;
    KivFileContent _content; // without its text, which is the file's
    KivSettingFile _file;
    std::optional<std::vector<KivSettingLine>> _written; // of the last version
    std::weak_ptr<KivFileLock> _turn;
    std::shared_ptr<const KivFilePlace> _owed; // where the last save could not flush the directory
};
