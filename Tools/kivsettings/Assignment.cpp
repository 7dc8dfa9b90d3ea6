#include "Assignment.h"

#include "Arguments.h"
#include "Console.h"
#include "KeySelection.h"
#include "ValueText.h"

#include "Settings/KivSettingLine.h"
#include "Settings/KivSettingTransaction.h"

#include <algorithm>

namespace {

// Empty, or what is wrong.
std::string Read(Assignment& assignment, std::string_view typed, const Settings& settings,
                 const Arguments& arguments)
{
    const std::string& key = assignment.key;
    if (const KivDrwCatalogueEntry* entry = KivDrwCatalogue::Find(key)) {
        const std::string wrong = ReadTyped(*entry, typed, assignment.value);
        return wrong.empty() ? wrong : key + ": " + wrong;
    }
    if (!arguments.Has("force")) return KeySelection::UnknownKeyMessage(key);
    if (!KivIsSettingKey(key))
        return "\"" + key + "\" cannot be a key: letters, digits and underscores, no digit in front";
    const std::string stored = settings.Describe(key).TypeWord();
    const std::string type(arguments.Has("type") ? arguments.Value("type") : stored);
    if (type.empty()) return key + ": say its type: --type int, unsigned, float, double or string";
    const std::string wrong = ReadTyped(type, typed, assignment.value);
    return wrong.empty() ? wrong : key + ": " + wrong;
}

} // namespace

std::optional<std::vector<Assignment>> Assignments::Parse(const std::vector<std::string>& words,
                                                          const Settings& settings,
                                                          const Arguments& arguments, Console& console)
{
    std::vector<Assignment> assignments;
    bool isGood = true;
    for (const std::string& word : words) {
        const std::size_t sign = word.find('=');
        Assignment assignment{word.substr(0, sign), {}};
        std::string wrong;
        if (sign == std::string::npos)
            wrong = "\"" + word + "\": write KEY=VALUE";
        else if (std::any_of(assignments.begin(), assignments.end(),
                             [&](const Assignment& other) { return other.key == assignment.key; }))
            wrong = assignment.key + ": the key stands twice";
        else
            wrong = Read(assignment, std::string_view(word).substr(sign + 1), settings, arguments);
        if (!wrong.empty()) {
            console.Say(wrong);
            isGood = false;
        }
        assignments.push_back(std::move(assignment));
    }
    if (!isGood) {
        if (words.size() > 1) console.Say("nothing was changed");
        return std::nullopt;
    }
    return assignments;
}

ExitCode Assignments::Store(const std::vector<Assignment>& assignments, Settings& settings, Console& console)
{
    KivSettingTransaction transaction(settings.Repository());
    for (const auto& [key, value] : assignments) transaction.Set(KivString(key.c_str()), value);
    ExitCode code = Settings::AfterSaving(transaction.Save(), console);
    for (const KivSettingTransaction::Refusal& refusal : transaction.Refusals()) {
        console.Say(refusal.key.View(), refusal.why.View());
        code = code | ExitCode::Refused;
    }
    return code;
}
