#include "Settings/KivSettingLayerCopy.h"

#include "Base/KivChecksum.h"
#include "Base/KivDiagnostic.h"
#include "Base/KivQuotedText.h"
#include "Disk/KivAtomicFile.h"
#include "Disk/KivFileContent.h"
#include "Disk/KivFileLock.h"
#include "Disk/KivHiddenName.h"
#include "Settings/KivSettingLayers.h"

#include <unistd.h>

KivSettingLayerCopy::KivSettingLayerCopy(const KivUnicodeString& original) : _original(original)
{
    _path = KivSettingLayers::Cache();
    if (_path.IsEmpty()) return;
    const std::string_view name = original.View().substr(KivDirectoryOf(original.View()).size());
    _path.Append("/layers/" + KivChecksumText(original.View()) + "-").Append(name);
}

std::string KivSettingLayerCopy::Header(std::string_view text) const
{
    std::string header =
        "# kivsettings copy 1 " + KivChecksumText(text) + " " + std::to_string(text.size()) + " ";
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
