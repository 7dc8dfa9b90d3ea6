#include "LayerCheck.h"

#include "KeySelection.h"
#include "ValueText.h"

#include "Settings/KivHiddenName.h"
#include "Settings/KivTimedReading.h"

#include <chrono>
#include <filesystem>

namespace {

using Severity = KivDiagnostic::Severity;

std::string Words(const KivUnicodeString& path, int line)
{
    return std::string(path.View()) + ":" + std::to_string(line);
}

bool IsDirectory(std::string_view path)
{
    std::error_code failed;
    return std::filesystem::is_directory(path, failed);
}

} // namespace

void LayerCheck::Add(const KivDiagnostic& finding)
{
    for (const KivDiagnostic& other : _findings) {
        if (other.Words() == finding.Words()) return; // of a file that was asked twice
    }
    _findings.push_back(finding);
}

const LayerCheck::Place* LayerCheck::LockOutside(const std::string& key) const
{
    const auto found = _outer.find(key);
    return found == _outer.end() ? nullptr : &found->second;
}

void LayerCheck::Say(const KivSettingLine& line, const std::string& text, Severity severity)
{
    _findings.push_back({severity, KivUnicodeString(text), _path, line.number, KivString(line.key)});
}

void LayerCheck::CheckTwice(const KivSettingLine& line)
{
    const auto [earlier, isFirst] = _valueLines.try_emplace(std::string(line.key), line.number);
    if (isFirst) return;
    Say(line, "the key stands in line " + std::to_string(std::exchange(earlier->second, line.number)) +
                  " too; this line counts");
}

void LayerCheck::CheckValue(const KivSettingLine& line)
{
    const std::string key(line.key);
    CheckTwice(line);
    if (const KivDrwRow* row = KivDrwCatalogue::Find(key)) {
        const std::string wrong = WrongWith(*row, line.value);
        if (!wrong.empty()) Say(line, wrong);
    } else {
        Say(line, KeySelection::UnknownWords(key) + (line.lock ? "" : "; the value has no effect"));
    }
    const bool isLock = line.lock && _locks != Locks::UsersOwn; // says the same of itself
    if (const Place* lock = isLock ? nullptr : LockOutside(key)) {
        Say(line, "the value has no effect: the key is locked at " + Words(lock->path, lock->line));
    }
    if (line.initial && _locks != Locks::UsersOwn)
        Say(line, "the mark \"initial\" has no effect in an administrator's file");
}

void LayerCheck::CheckLock(const KivSettingLine& line)
{
    const std::string key(line.key);
    if (_locks == Locks::UsersOwn)
        return Say(line, "the lock has no effect: only an administrator's layer can lock");
    if (!KivHasValue(line.value) && !KivDrwCatalogue::Find(key)) {
        Say(line, KeySelection::UnknownWords(key) + "; the lock has no effect");
    }
    if (const Place* lock = LockOutside(key)) {
        return Say(line, "the line has no effect: the key is locked at " + Words(lock->path, lock->line) +
                             " already");
    }
    const auto [own, isFirst] = _own.try_emplace(key, Place{_path, line.number});
    if (!isFirst) Say(line, "the lock stands in line " + std::to_string(own->second.line) + " too");
}

void LayerCheck::CheckLine(const KivSettingLine& line)
{
    if (line.reason) Say(line, std::string(line.reason) + "; the line is not used");
    if (line.key.empty()) return;
    if (KivHasValue(line.value)) CheckValue(line);
    if (line.lock) CheckLock(line);
}

void LayerCheck::Take(const KivUnicodeString& path, Locks locks)
{
    _path = path;
    _locks = locks;
    _own.clear();
    _valueLines.clear();
    const auto say = [this](Severity severity, const std::string& text) {
        _findings.push_back({severity, KivUnicodeString(text), _path, 0, {}});
    };
    // A share that does not answer must not hold up the rest.
    KivFileContent content = std::move(KivReadInTime({path}, std::chrono::seconds(1), &KivReadFile).front());
    if (content.state == KivFileContent::State::Unreadable) {
        _isUnreadable = true;
        return say(Severity::Error, std::string(content.reason.View()));
    }
    if (content.state == KivFileContent::State::Absent) {
        const std::string_view directory = KivDirectoryOf(path.View());
        if (locks != Locks::UsersOwn && !IsDirectory(directory))
            say(Severity::Warning, "the layer's directory is not there");
        return;
    }
    ++_files;
    const KivSettingFile file(std::move(content.text));
    if (file.IsNewer())
        say(Severity::Warning, "the file is of another version; the lines that can be read are used");
    if (locks != Locks::UsersOwn && !file.IsTerminated())
        say(Severity::Warning, "the file ends within a line, as if half written");
    for (const KivSettingLine& line : file.Lines()) CheckLine(line);
    if (locks == Locks::Trial && !_own.empty()) {
        say(Severity::Warning,
            "its locks are not enforced: KivAdminSettingsPath names the layer, and a user can change that");
    }
    for (const auto& [key, place] : _own) _outer.try_emplace(key, place);
}
