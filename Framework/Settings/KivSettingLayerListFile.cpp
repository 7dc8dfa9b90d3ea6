#include "Settings/KivSettingLayerListFile.h"

#include "Base/KivDiagnostic.h"
#include "Base/KivTextLines.h"
#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingSeal.h"

#include <algorithm>
#include <unordered_set>

namespace {

constexpr std::string_view kOptional = "optional";
constexpr std::string_view kNone = "none";

constexpr std::size_t kMostReports = 20; // nobody reads more of a list of noise

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

bool IsControl(char c)
{
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

// Cuts the word off which makes a layer optional.
bool TakeOptional(std::string_view& line)
{
    if (!line.starts_with(kOptional) || line.size() == kOptional.size() || !IsBlank(line[kOptional.size()]))
        return false;
    line = Trimmed(line.substr(kOptional.size()));
    return true;
}

KivUnicodeString SealCommand()
{
    const KivUnicodeString command("kivsettings seal --list");
    if (KivSettingLayers::IsUsualSystemFile()) return command;
    return command + " --system-layers " + KivSettingLayers::SystemFile();
}

} // namespace

KivSettingLayerListFile::KivSettingLayerListFile(std::string_view text)
{
    Read(text);
    Judge(text);
}

void KivSettingLayerListFile::Read(std::string_view text)
{
    std::unordered_set<std::string> named;
    const std::size_t mark = KivSettingHead(text).begin;
    for (KivTextLines lines(text); lines.Next();) {
        std::string_view line = Trimmed(lines.Line().substr(lines.Number() == 1 ? mark : 0));
        if (line.empty() || line[0] == '#') continue;
        if (line == kNone) {
            _saysNone = true;
            continue;
        }
        const bool isOptional = TakeOptional(line);
        if (line[0] != '/') {
            _badLines.push_back({lines.Number(), "the line is no absolute path"});
        } else if (std::any_of(line.begin(), line.end(), &IsControl)) {
            _badLines.push_back({lines.Number(), "the path holds a character that no path has"});
        } else {
            KivUnicodeString directory = KivSettingLayers::Absolute(line);
            if (named.emplace(directory.View()).second) _layers.push_back({std::move(directory), isOptional});
        }
    }
}

void KivSettingLayerListFile::Judge(std::string_view text)
{
    if (text.empty())
        _trouble = "the list of layers is empty; the line \"none\" withdraws all of them";
    else if (!_badLines.empty())
        _trouble = "the list of layers is damaged";
    else if (_saysNone && !_layers.empty())
        _trouble = "the list of layers names some and says \"none\"";
    else if (!_saysNone && _layers.empty())
        _trouble = "the list of layers names none; the line \"none\" withdraws all of them";
    _doubt = _trouble;
    if (!_doubt.IsEmpty()) return;
    if (KivSettingSeal::StateOf(text) == KivSettingSeal::State::Broken)
        _doubt = KivUnicodeString(
                     "the list of layers was edited by hand, or is damaged: its seal does not fit; ") +
                 "\"" + SealCommand() + "\" accepts it as it stands";
    else if (!KivIsLastLineEnded(text))
        _doubt = "the list of layers ends within a line, as if half written";
}

void KivSettingLayerListFile::Report(const KivUnicodeString& path) const
{
    for (std::size_t i = 0; i < std::min(_badLines.size(), kMostReports); ++i)
        KivReport({.text = _badLines[i].reason, .file = path, .line = _badLines[i].number});
}
