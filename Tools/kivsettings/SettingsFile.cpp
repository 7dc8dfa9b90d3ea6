#include "SettingsFile.h"

#include "Console.h"

#include "Disk/KivFileContent.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>
#include <unordered_map>

namespace {

KivFileContent ReadStandardInput()
{
    KivFileContent content;
    char buffer[1 << 16];
    for (;;) {
        const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
        if (count < 0 && errno == EINTR) continue;
        if (count == 0) break;
        if (count < 0) content.reason = KivErrorMessage("it cannot be read", errno);
        if (count > 0) content.text.append(buffer, static_cast<std::size_t>(count));
        if (content.text.size() > KivMostBytes) content.reason = "it is too large";
        if (!content.reason.IsEmpty()) {
            content.state = KivFileContent::State::Unreadable;
            return content;
        }
    }
    content.state = KivFileContent::State::Read;
    return content;
}

} // namespace

SettingsFile::SettingsFile(const std::string& path, Console& console)
{
    const bool isInput = path == "-";
    KivFileContent content = isInput ? ReadStandardInput() : KivReadFile(KivUnicodeString(path));
    const std::string name = isInput ? "standard input" : path;
    if (content.state == KivFileContent::State::Absent) content.reason = "there is no such file";
    if (content.state != KivFileContent::State::Read) {
        console.Say(name, content.reason.View());
        return;
    }
    const KivSettingFile file(std::move(content.text));
    file.Report(KivUnicodeString(name));
    if (file.SealState() == KivSettingSeal::State::Broken)
        console.Say(name, "it was edited by hand, or is cut or damaged: its seal does not fit");
    _isRead = true;
    _isWhole = !file.IsDamaged();
    std::unordered_map<std::string_view, std::size_t> indices;
    for (const KivSettingLine& line : file.Lines()) {
        if (line.key.empty() || (!line.lock && !KivHasValue(line.value))) continue;
        const auto [slot, isNew] = indices.try_emplace(line.key, _entries.size());
        if (isNew) _entries.emplace_back(line.key, KivSettingEntry());
        KivSettingEntry& entry = _entries[slot->second].second;
        if (KivHasValue(line.value)) {
            entry.value = line.value;
            entry.initial = line.initial;
            entry.line = line.number;
        }
        if (line.lock) entry.lock = true;
    }
}

KivSettingEntry SettingsFile::Find(const std::string& key) const
{
    const auto found = std::find_if(_entries.begin(), _entries.end(),
                                    [&key](const auto& entry) { return entry.first == key; });
    return found == _entries.end() ? KivSettingEntry() : found->second;
}
