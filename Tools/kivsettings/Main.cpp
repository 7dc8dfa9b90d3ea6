#include "Arguments.h"
#include "Console.h"
#include "Help.h"

#include "Disk/KivTimedCalls.h"
#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingRepository.h"

#include <filesystem>

namespace {

ExitCode Misuse(Console& console, const Arguments& arguments)
{
    console.Say(arguments.problem);
    std::string hint = "\"kivsettings help";
    if (arguments.command) (hint += ' ') += arguments.command->name;
    console.Say(hint + "\" explains");
    return ExitCode::Misuse;
}

// Asks without waiting long: it may lie on a share that does not answer.
std::filesystem::file_type TypeOf(const std::string& path)
{
    const auto type = [](const KivUnicodeString& place) {
        std::error_code failed;
        return std::filesystem::status(place.View(), failed).type();
    };
    const auto answer = KivTimedCalls<std::filesystem::file_type>().Make({KivUnicodeString(path)}, type,
                                                                         std::chrono::seconds(1));
    return answer[0].value_or(std::filesystem::file_type::unknown);
}

// False, and said, when there is no such file or directory.
bool FindLayers(const Arguments& arguments, Console& console)
{
    using Type = std::filesystem::file_type;
    const auto isMissing = [&console](const std::string& path, Type type, const char* what) {
        if (type == Type::unknown) what = "the file system does not answer in time";
        console.Say(path, what);
        return false;
    };
    if (arguments.Has("system-layers")) {
        const std::string file(arguments.Value("system-layers"));
        const bool isNone = file == "none";
        const Type type = isNone ? Type::regular : TypeOf(file);
        if (type == Type::unknown || type == Type::not_found)
            return isMissing(file, type, "there is no such file");
        KivSettingLayers::SetSystemFile(isNone ? KivUnicodeString() : KivSettingLayers::Absolute(file));
    }
    if (arguments.Has("layer")) {
        const std::string directory(arguments.Value("layer"));
        // Made by the administrator, not by a typing error.
        if (const Type type = TypeOf(directory); type != Type::directory)
            return isMissing(directory, type, "the layer's directory is not there");
        KivSettingRepository::SetEditedLayer(KivUnicodeString(directory));
    }
    return true;
}

ExitCode Run(const Arguments& arguments, Console& console)
{
    if (!arguments.problem.empty()) return Misuse(console, arguments);
    if (arguments.version) {
        console.Print("kivsettings " KIV_VERSION "\n");
        return ExitCode::Done;
    }
    if (!arguments.command) {
        if (arguments.Has("help")) {
            console.Print(Overview());
            return ExitCode::Done;
        }
        console.Say("say what to do: \"kivsettings help\" lists the commands");
        return ExitCode::Misuse;
    }
    if (arguments.Has("help")) {
        console.Print(HelpOf(*arguments.command));
        return ExitCode::Done;
    }
    if (!FindLayers(arguments, console)) return ExitCode::Trouble;
    return arguments.command->run(arguments, console);
}

} // namespace

int main(int count, char** words)
{
    Console::Secure();
    Console console;
    const std::vector<std::string> arguments(words + (count > 0 ? 1 : 0), words + count);
    return static_cast<int>(console.Finish(Run(Arguments::Parse(arguments), console)));
}
