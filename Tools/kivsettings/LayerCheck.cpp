#include "LayerCheck.h"

#include "KeySelection.h"
#include "ValueText.h"

#include "Base/KivDiagnosticScope.h"
#include "Disk/KivTimedReading.h"
#include "Settings/KivSettingFile.h"
#include "Settings/KivSettingLayerList.h"
#include "Settings/KivSettingLayers.h"

#include <algorithm>
#include <chrono>

namespace {

using Kind = KivSettingFinding::Kind;

// The files of the layers, outermost first, the one that is written last.
std::vector<KivUnicodeString> Paths(const KivUnicodeString& edited)
{
    std::vector<KivUnicodeString> paths = KivSettingLayerList::Read().Outside(edited).Directories();
    const KivUnicodeString own = edited.IsEmpty() ? KivSettingLayers::User() : edited;
    if (!own.IsEmpty()) paths.push_back(own);
    for (KivUnicodeString& path : paths) path = KivSettingLayers::FileIn(path, Settings::Name);
    return paths;
}

// Values of another type or out of range.
void CheckValues(const KivUnicodeString& path, const KivSettingFile& file, LayerCheck& check)
{
    for (const KivSettingLine& line : file.Lines()) {
        const KivDrwCatalogueEntry* const entry =
            KivHasValue(line.value) ? KivDrwCatalogue::Find(line.key) : nullptr;
        const std::string wrong = entry ? WrongWith(*entry, line.value) : "";
        if (wrong.empty()) continue;
        check.findings.push_back(
            {Kind::Wrong, {}, path, line.number, KivString(line.key), KivUnicodeString(wrong)});
    }
}

// Whoever mistyped a key wants to know which one he meant.
void SuggestName(KivSettingFinding& finding)
{
    if (finding.kind != Kind::NoEffect || finding.key.IsEmpty() || KivDrwCatalogue::Find(finding.key.View()))
        return;
    finding.text.Append(KeySelection::Suggestion(finding.key.View()));
}

void Sort(LayerCheck& check, const std::vector<KivUnicodeString>& paths)
{
    const auto location = [&paths](const KivSettingFinding& finding) {
        const auto at = std::find_if(paths.begin(), paths.end(), [&finding](const KivUnicodeString& path) {
            return path.View().starts_with(finding.file.View()); // of the file, or of its directory
        });
        return std::pair(finding.file.IsEmpty() || at == paths.end() ? -1 : at - paths.begin(), finding.line);
    };
    std::stable_sort(
        check.findings.begin(), check.findings.end(),
        [&location](const auto& left, const auto& right) { return location(left) < location(right); });
}

} // namespace

LayerCheck CheckLayers(const KivUnicodeString& editedLayer)
{
    LayerCheck check;
    std::vector<const char*> known;
    for (const KivDrwCatalogueEntry& entry : KivDrwCatalogue::Entries()) known.push_back(entry.key);
    check.findings = KivCheckSettings(Settings::Name, known, editedLayer);
    std::vector<KivUnicodeString> paths;
    {
        // What is said of the list of layers is among the findings.
        std::vector<KivDiagnostic> saidBefore;
        const KivDiagnosticScope scope(saidBefore);
        paths = Paths(editedLayer);
    }
    for (KivSettingFinding& finding : check.findings) SuggestName(finding);

    // A share that does not answer must not hold up the rest.
    const auto read = [](const KivUnicodeString& path) { return KivReadFile(path); };
    std::vector<KivFileContent> contents = KivReadInTime(paths, std::chrono::seconds(1), read);
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (contents[i].state == KivFileContent::State::Unreadable) check.isUnreadable = true;
        if (contents[i].state != KivFileContent::State::Read) continue;
        ++check.files;
        CheckValues(paths[i], KivSettingFile(std::move(contents[i].text)), check);
    }
    Sort(check, paths);
    return check;
}
