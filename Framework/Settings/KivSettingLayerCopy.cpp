#include "Settings/KivSettingLayerCopy.h"

#include "Base/KivChecksum.h"
#include "Base/KivDiagnostic.h"
#include "Base/KivQuotedText.h"
#include "Disk/KivAtomicFile.h"
#include "Disk/KivDirectoryTrouble.h"
#include "Disk/KivFileContent.h"
#include "Disk/KivFileLock.h"
#include "Disk/KivPath.h"
#include "Settings/KivSettingLayers.h"

#include <map>

namespace {

struct Known {
    std::string text;
    bool isOnDisk = false;
};

// By the original's path. Never destroyed: asked until the very end.
std::map<KivUnicodeString, Known>& Memory()
{
    static auto& memory = *new std::map<KivUnicodeString, Known>;
    return memory;
}

} // namespace

KivSettingLayerCopy::KivSettingLayerCopy(const KivUnicodeString& original, bool isEnforced)
    : _original(original), _isEnforced(isEnforced)
{}

// Empty when there is no place for copies.
KivUnicodeString KivSettingLayerCopy::Path() const
{
    KivUnicodeString path = KivSettingLayers::Cache(_isEnforced);
    if (path.IsEmpty()) return path;
    const std::string_view name = _original.View().substr(KivDirectoryOf(_original.View()).size());
    return path.Append("/layers/" + KivChecksumText(_original.View()) + "-").Append(name);
}

std::string KivSettingLayerCopy::Header(std::string_view text) const
{
    std::string header =
        "# kivsettings copy 1 " + KivChecksumText(text) + " " + std::to_string(text.size()) + " ";
    KivAppendQuoted(header, _original.View());
    return header += '\n';
}

bool KivSettingLayerCopy::ReadFromDisk(std::string& text) const
{
    const KivUnicodeString path = Path();
    if (path.IsEmpty() ||
        !KivDirectoryTrouble(KivUnicodeString(KivDirectoryOf(path.View())), false).IsEmpty())
        return false;
    const KivFileContent copy = KivReadFile(path);
    const std::size_t headerEnd = copy.text.find('\n');
    if (copy.state != KivFileContent::State::Read || headerEnd == std::string::npos) return false;
    std::string body = copy.text.substr(headerEnd + 1);
    if (Header(body) != std::string_view(copy.text).substr(0, headerEnd + 1)) return false;
    text = std::move(body);
    return true;
}

bool KivSettingLayerCopy::Read(std::string& text) const
{
    const auto [known, isNew] = Memory().try_emplace(_original);
    if (isNew && !(known->second.isOnDisk = ReadFromDisk(known->second.text))) {
        Memory().erase(known);
        return false;
    }
    text = known->second.text;
    return true;
}

bool KivSettingLayerCopy::StandIn(const KivUnicodeString& doubt, const char* otherwise,
                                  std::string& text) const
{
    const bool isKnown = Read(text);
    KivReport({.text = doubt +
                       (isKnown ? "; this machine's copy of its last complete state is in force" : otherwise),
               .file = _original});
    return isKnown;
}

void KivSettingLayerCopy::Keep(std::string_view text) const
{
    Known& known = Memory()[_original];
    if (known.isOnDisk && known.text == text) return;
    known.text = text;
    known.isOnDisk = !text.empty() && KeepOnDisk(text);
}

// Whether it is there from now on.
bool KivSettingLayerCopy::KeepOnDisk(std::string_view text) const
{
    const KivUnicodeString path = Path();
    std::string kept;
    if (path.IsEmpty() || (ReadFromDisk(kept) && kept == text)) return true;

    const auto failed = [&path](const KivUnicodeString& reason) {
        KivReport({.severity = KivDiagnostic::Severity::Note,
                   .text = KivUnicodeString("the copy of an administrator's file cannot be kept: ") + reason,
                   .file = path});
        return false;
    };
    const KivUnicodeString directory(KivDirectoryOf(path.View()));
    if (const KivUnicodeString trouble = KivMakingTrouble(directory); !trouble.IsEmpty())
        return failed(trouble);
    if (const int error = KivMakeDirectories(directory, 0700)) {
        return failed(KivErrorMessage("no directory", error));
    }
    if (const KivUnicodeString trouble = KivDirectoryTrouble(directory, false); !trouble.IsEmpty())
        return failed(trouble);
    // Another program that is here at the same time keeps the same copy.
    KivFileLock lock(path);
    if (!lock.Await(std::chrono::milliseconds(15)) || !lock.IsHeld()) return failed(lock.Reason());
    KivAtomicFile file(lock.Place());
    return (file.Write(Header(text).append(text), 0600) && file.Rename()) || failed(file.Reason());
}

void KivSettingLayerCopy::ForgetAll()
{
    Memory().clear();
}
