#include "Arguments.h"
#include "Console.h"
#include "Help.h"

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

// False, and said, when there is no such file or directory.
bool FindLayers(const Arguments& arguments, Console& console)
{
    std::error_code failed;
    if (arguments.Has("system-layers")) {
        const std::string file(arguments.Value("system-layers"));
        if (!std::filesystem::exists(file, failed)) {
            console.Say(file, "there is no such file");
            return false;
        }
        KivSettingLayers::SetSystemFile(KivSettingLayers::Absolute(file));
    }
    if (arguments.Has("layer")) {
        const std::string directory(arguments.Value("layer"));
        // Made by the administrator, not by a typing error.
        if (!std::filesystem::is_directory(directory, failed)) {
            console.Say(directory, "the layer's directory is not there");
            return false;
        }
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
