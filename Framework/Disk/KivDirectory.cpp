#include "Disk/KivDirectory.h"

#include "Disk/KivPath.h"
#include "Disk/KivTimedCall.h"

#include <dirent.h>
#include <map>
#include <memory>
#include <utility>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kPatience = 200ms;   // nobody takes that for a halt
constexpr auto kNamesPatience = 1s; // thousands of files may have to be listed

KivDirectoryLook LookAt(const KivUnicodeString& path, bool withNames)
{
    KivDirectoryLook look;
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(path.ConvertToChar()), &closedir);
    look.isThere = stream != nullptr;
    if (!stream || !withNames) return look;
    look.names.emplace();
    while (const dirent* entry = readdir(stream.get())) look.names->emplace_back(entry->d_name);
    return look;
}

KivDirectoryLooker& Looker()
{
    static auto& looker = *new KivDirectoryLooker(&LookAt);
    return looker;
}

// A directory that was late, and the one look at it that may be under way.
struct SlowDirectory {
    std::optional<KivTimedCall<KivDirectoryLook>> call;
    std::optional<KivDirectoryLook> known;
    bool isSlow = false;
    bool withNames = false; // somebody has asked for them

    // Takes what has come. Whether anything has.
    bool Absorb()
    {
        if (!call || !call->IsDone()) return false;
        isSlow = call->Took() > kPatience;
        KivDirectoryLook look = call->Take();
        if (look.isThere && !look.names && known) look.names = std::move(known->names);
        known = std::move(look);
        call.reset();
        return true;
    }
};

// Used by the thread of the user interface alone. Those that answer in time are not kept.
std::map<KivUnicodeString, SlowDirectory>& SlowDirectories()
{
    static auto& directories = *new std::map<KivUnicodeString, SlowDirectory>;
    return directories;
}

std::optional<KivDirectoryLook> Ask(const KivUnicodeString& path, bool withNames, Clock::duration patience)
{
    const bool isOurs = Looker().target<KivDirectoryLook (*)(const KivUnicodeString&, bool)>() != nullptr;
    if (isOurs && !SlowDirectories().contains(path) && KivIsNearPath(path)) return LookAt(path, withNames);
    SlowDirectory& directory = SlowDirectories()[path];
    directory.Absorb();
    const bool isHanging = directory.call.has_value();
    directory.withNames = directory.withNames || withNames;
    if (!isHanging)
        directory.call.emplace(
            [path, names = directory.withNames, look = Looker()] { return look(path, names); });
    if (!isHanging && !directory.isSlow) directory.call->WaitUntil(Clock::now() + patience);
    const bool isInTime = directory.Absorb();
    std::optional<KivDirectoryLook> known = directory.known;
    if (isInTime)
        SlowDirectories().erase(path);
    else
        directory.isSlow = true;
    return known;
}

KivDirectoryAnswer AnswerOf(const KivUnicodeString& path, const std::optional<KivDirectoryLook>& known)
{
    KivDirectoryAnswer answer;
    if (known) answer.state = known->isThere ? KivDirectoryState::There : KivDirectoryState::Missing;
    const auto directory = SlowDirectories().find(path);
    answer.isAwaited = directory != SlowDirectories().end() && directory->second.call;
    return answer;
}

} // namespace

KivDirectoryAnswer KivAskDirectory(const KivUnicodeString& path)
{
    const std::optional<KivDirectoryLook> known = Ask(path, false, kPatience);
    return AnswerOf(path, known);
}

KivDirectoryAnswer KivPollDirectory(const KivUnicodeString& path)
{
    const auto directory = SlowDirectories().find(path);
    if (directory == SlowDirectories().end()) return KivAskDirectory(path); // it answers in time by now
    directory->second.Absorb();
    return AnswerOf(path, directory->second.known);
}

int KivOpenDirectory(const KivUnicodeString& path, KivDirectory& directory)
{
    if (KivAskDirectory(path).state != KivDirectoryState::There) return -1;
    directory = {.path = path, .names = std::nullopt};
    return 0;
}

int KivReadDirectory(KivDirectory& directory, KivUnicodeString& name)
{
    if (directory.path.IsEmpty()) return -1;
    if (!directory.names) {
        const std::optional<KivDirectoryLook> look = Ask(directory.path, true, kNamesPatience);
        directory.names.emplace();
        if (look && look->names) directory.names = look->names;
    }
    if (directory.next == directory.names->size()) return -1;
    name = (*directory.names)[directory.next++];
    return 0;
}

KivDirectoryLooker KivSetDirectoryLooker(KivDirectoryLooker looker)
{
    return std::exchange(Looker(), std::move(looker));
}
