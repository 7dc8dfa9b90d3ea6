#include "Program/DraftingStart.h"

#include "Base/KivTextCatalogue.h"
#include "Common/NativeText.h"
#include "Component/KivLibrary.h"
#include "KivDrwWorkbench.h"
#include "Options/KivOptionsSession.h"
#include "Parameter/KivControlUnit.h"
#include "Parameter/KivParmEngine.h"
#include "Parameter/KivParmMagnitude.h"
#include "Program/DraftingOptions.h"
#include "Settings/KivSettingRepository.h"

#include <algorithm>
#include <filesystem>
#include <ostream>

namespace {

std::string Text(const char* key)
{
    return DraftingText(key).toStdString();
}

std::string Text(const char* key, const std::string& about)
{
    return DraftingText(key).arg(QString::fromStdString(about)).toStdString();
}

// What was misused, and the names that would have been right.
int Misused(std::ostream& err, const std::string& message, const std::vector<std::string>& choices = {})
{
    err << "kivdrafting: " << message << '\n';
    for (const std::string& choice : choices) err << "    " << choice << '\n';
    if (choices.empty()) err << Text("WrongSeeHelp") << '\n';
    return DraftingStart::kMisused;
}

} // namespace

std::optional<int> DraftingStart::Prepare(const CommandLine& line, std::ostream& out, std::ostream& err)
{
    if (const auto code = ChooseLanguage(line, err)) return code;
    if (line.problem) return Misused(err, Text(line.problem->text, line.problem->about));
    if (line.help) {
        SayHelp(out);
        return kDone;
    }
    if (line.version) {
        out << "kivdrafting " KIV_VERSION "\n";
        return kDone;
    }
    if (const auto code = ChooseUnit(line, err)) return code;
    if (const auto code = ChooseLayer(line, err)) return code;
    for (const char* library : {KIV_COMPONENT_LIBRARIES}) KivLoadLibrary(library);
    if (line.administrator.empty()) {
        KivDrwOptionsServices::InitOptionsOnDisk();
    } else {
        // An empty layer stays empty until something is chosen: defaults written there would stand in the way
        // of every layer around it.
        KivSketcherSettings::SetSketcherSettings(KivDrwSketcherSettings::GetSketcherSettings());
    }
    return FindPage(line, err);
}

void DraftingStart::SayHelp(std::ostream& out)
{
    out << Text("HelpUsage") << "\n\n";
    std::vector<std::string> forms;
    std::size_t widest = 0;
    for (const CommandLine::Option& option : CommandLine::Options()) {
        forms.push_back(std::string("--") + option.name + (option.value ? " " + Text(option.value) : ""));
        widest = std::max(widest, forms.back().size());
    }
    for (std::size_t i = 0; i < forms.size(); ++i)
        out << "  " << forms[i] << std::string(widest - forms[i].size() + 2, ' ')
            << Text(CommandLine::Options()[i].help) << '\n';
    out << '\n' << Text("HelpExit") << '\n';
}

// A language that is not known leaves the message in English.
std::optional<int> DraftingStart::ChooseLanguage(const CommandLine& line, std::ostream& err)
{
    if (line.language.empty()) return std::nullopt;
    const std::set<std::string> known = KivTextCatalogue::KnownLanguages();
    if (!known.contains(line.language))
        return Misused(err, Text("WrongLanguage", line.language), {known.begin(), known.end()});
    KivTextCatalogue::SetLanguage(KivString(line.language));
    return std::nullopt;
}

std::optional<int> DraftingStart::ChooseUnit(const CommandLine& line, std::ostream& err)
{
    if (line.lengthUnit.empty() ||
        KivParmEngine::Instance().SetCurrentUnit(KivParmDictionary::LengthType, line.lengthUnit))
        return std::nullopt;
    std::vector<std::string> names;
    for (const KivControlUnit& unit : KivControlUnit::All()) {
        if (unit.magnitude != KivDlgMagnitudeLength) continue;
        names.push_back(std::string(unit.name) + " (" + std::string(unit.words) + ")");
    }
    return Misused(err, Text("WrongUnit", line.lengthUnit), names);
}

std::optional<int> DraftingStart::ChooseLayer(const CommandLine& line, std::ostream& err)
{
    if (line.administrator.empty()) return std::nullopt;
    std::error_code failed;
    if (!std::filesystem::is_directory(line.administrator, failed))
        return Misused(err, Text("WrongLayer", line.administrator));
    const auto whole = std::filesystem::absolute(line.administrator, failed);
    KivSettingRepository::SetEditedLayer(KivUnicodeString((failed ? line.administrator : whole.string())));
    return std::nullopt;
}

std::optional<int> DraftingStart::FindPage(const CommandLine& line, std::ostream& err)
{
    if (line.page.empty()) return std::nullopt;
    const std::unique_ptr<KivOptionsSession> session = DraftingOptions::NewSession();
    if (session->FindPage(KivUnicodeString(line.page))) return std::nullopt;
    std::vector<std::string> titles;
    for (const KivOptionsSession::Page& page : session->Pages()) titles.emplace_back(page.title.View());
    return Misused(err, Text(titles.empty() ? "WrongNoPages" : "WrongPage", line.page), titles);
}
