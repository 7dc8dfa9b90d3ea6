#include "Settings/KivSettingLayerCopy.h"

#include "Base/KivDiagnostic.h"
#include "Base/KivQuotedText.h"
#include "Disk/KivAtomicFile.h"
#include "Disk/KivFileContent.h"
#include "Disk/KivFileLock.h"
#include "Disk/KivHiddenName.h"
#include "Settings/KivSettingLayers.h"

#include <cstdint>
#include <unistd.h>

namespace {

// FNV-1a: the same on every machine and in every version, unlike the standard library's hash.
std::string Checksum(std::string_view text)
{
    std::uint64_t sum = 14695981039346656037U;
    for (const char c : text) sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211U;
    std::string digits(16, '0');
    for (std::size_t at = 16; at-- > 0; sum >>= 4) digits[at] = "0123456789abcdef"[sum & 15];
    return digits;
}

} // namespace

KivSettingLayerCopy::KivSettingLayerCopy(const KivUnicodeString& original) : _original(original)
{
    _path = KivSettingLayers::Cache();
    if (_path.IsEmpty()) return;
    const std::string_view name = original.View().substr(KivDirectoryOf(original.View()).size());
    _path.Append("/layers/" + Checksum(original.View()) + "-").Append(name);
}

std::string KivSettingLayerCopy::Header(std::string_view text) const
{
    std::string header = "# kivsettings copy 1 " + Checksum(text) + " " + std::to_string(text.size()) + " ";
    KivAppendQuoted(header, _original.View());
    return header += '\n';
}

bool KivSettingLayerCopy::Read(std::string& text) const
{
    if (_path.IsEmpty()) return false;
    const KivFileContent copy = KivReadFile(_path);
    const std::size_t headerEnd = copy.text.find('\n');
    if (copy.state != KivFileContent::State::Read || headerEnd == std::string::npos) return false;
    std::string body = copy.text.substr(headerEnd + 1);
    if (Header(body) != std::string_view(copy.text).substr(0, headerEnd + 1)) return false;
    text = std::move(body);
    return true;
}

void KivSettingLayerCopy::Keep(std::string_view text) const
{
    if (_path.IsEmpty()) return;
    std::string kept;
    if (Read(kept) && kept == text) return;

    const auto failed = [this](const KivUnicodeString& reason) {
        KivReport({KivDiagnostic::Severity::Note,
                   KivUnicodeString("the copy of an administrator's file cannot be kept: ") + reason,
                   _path,
                   0,
                   {}});
    };
    const KivUnicodeString directory(KivDirectoryOf(_path.View()));
    if (const int error = KivMakeDirectories(directory, 0700)) {
        return failed(KivErrorWords("no directory", error));
    }
    // Another program that is here at the same time keeps the same copy.
    KivFileLock lock(_path);
    if (!lock.Await(std::chrono::milliseconds(15)) || !lock.IsHeld()) return failed(lock.Reason());
    KivAtomicFile file(lock.Place());
    if (!file.Write(Header(text).append(text), 0600) || !file.Rename()) failed(file.Reason());
}

void KivSettingLayerCopy::Drop() const
{
    if (!_path.IsEmpty()) unlink(_path.ConvertToChar());
}
