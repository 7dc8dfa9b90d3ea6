#include "Disk/KivDirectory.h"

#include "Disk/KivNearPath.h"
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

// A place that was late, and the one look at it that may be under way.
struct Place {
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
std::map<KivUnicodeString, Place>& Places()
{
    static auto& places = *new std::map<KivUnicodeString, Place>;
    return places;
}

std::optional<KivDirectoryLook> Ask(const KivUnicodeString& path, bool withNames, Clock::duration patience)
{
    const bool isOurs = Looker().target<KivDirectoryLook (*)(const KivUnicodeString&, bool)>() != nullptr;
    if (isOurs && !Places().contains(path) && KivIsNearPath(path)) return LookAt(path, withNames);
    Place& place = Places()[path];
    place.Absorb();
    const bool isHanging = place.call.has_value();
    place.withNames = place.withNames || withNames;
    if (!isHanging)
        place.call.emplace([path, names = place.withNames, look = Looker()] { return look(path, names); });
    if (!isHanging && !place.isSlow) place.call->WaitUntil(Clock::now() + patience);
    const bool isInTime = place.Absorb();
    std::optional<KivDirectoryLook> known = place.known;
    if (isInTime)
        Places().erase(path);
    else
        place.isSlow = true;
    return known;
}

KivDirectoryAnswer AnswerOf(const KivUnicodeString& path, const std::optional<KivDirectoryLook>& known)
{
    KivDirectoryAnswer answer;
    if (known) answer.state = known->isThere ? KivDirectoryState::There : KivDirectoryState::Missing;
    const auto place = Places().find(path);
    answer.isAwaited = place != Places().end() && place->second.call;
    return answer;
}

} // namespace

KivDirectoryAnswer KivAskDirectory(const KivUnicodeString& path)
{
    const std::optional<KivDirectoryLook> known = Ask(path, false, kPatience);
    return AnswerOf(path, known);
}

KivDirectoryAnswer KivHearOfDirectory(const KivUnicodeString& path)
{
    const auto place = Places().find(path);
    if (place == Places().end()) return KivAskDirectory(path); // it answers in time by now
    place->second.Absorb();
    return AnswerOf(path, place->second.known);
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
