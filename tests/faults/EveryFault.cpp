#include "PowerCut.h"
#include "Scenario.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Faults::Effect;
using Faults::Fault;

// Whether a name in the tree is a working file that a dead process, or a fault of unlink, may leave.
bool IsLitter(const std::string& name)
{
    return name.ends_with(".tmp");
}
bool IsAside(const std::string& name)
{
    return name.find(".damaged-") != std::string::npos;
}
bool IsLock(const std::string& name)
{
    return name.ends_with(".lock");
}

std::string BytesIn(const std::string& text)
{
    return text.substr(text.find('\n'));
}

// One scenario with one fault at one of its calls.
class OneFault {
public:
    OneFault(const Scenario& scenario, const std::string& after) : _scenario(scenario), _after(after)
    {
        scenario.Prepare(_box);
        _before = TreeOf(_box.root);
    }

    // What is wrong afterwards; empty when all is well. Tells whether there was such a call.
    std::string Trouble(const Fault& fault, int at, bool& hasStruck)
    {
        _isCrash = fault.effect == Effect::Crash || fault.effect == Effect::Torn;
        const std::string trouble =
            _isCrash ? AfterCrash(fault, at, hasStruck) : AfterFault(fault, at, hasStruck);
        Faults::Disarm();
        return trouble;
    }

private:
    // A crash may cut it short; then there is another one.
    bool IsAsideOf(const std::string& damaged, const std::string& bytes) const
    {
        return _isCrash ? damaged.starts_with(bytes) : damaged == bytes;
    }

    std::string AfterCrash(const Fault& fault, int at, bool& hasStruck)
    {
        const pid_t child = fork();
        if (child == 0) {
            Faults::Arm(fault, at, _box.root.string());
            _scenario.Act(_box);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        hasStruck = WIFEXITED(status) && WEXITSTATUS(status) == Faults::kCrashed;
        if (!hasStruck && status != 0) return "the process died of something else";
        if (std::string trouble = Tidiness(true); !trouble.empty()) return trouble;
        return AfterRetry(_scenario.Act(_box));
    }

    std::string AfterFault(const Fault& fault, int at, bool& hasStruck)
    {
        PowerCut cut(_box.root);
        const auto arm = [&] { Faults::Arm(fault, at, _box.root.string()); };
        // A start without descriptors closes the layers; a save that has begun can end.
        const bool isOfSave = fault.error == EMFILE;
        if (!isOfSave) arm();
        KivSettingRepository& repository = _scenario.Act(_box, isOfSave ? arm : std::function<void()>());
        const Faults::Struck struck = Faults::Disarm();
        hasStruck = struck.times > 0;
        const Receipt receipt = repository.LastReceipt();
        KivSettingInfo info;
        repository.GetInfo("Fresh", &info, 0);
        if (info.locked) { // a layer that nothing is known of could not be read: it closes all
            const std::string trouble = Tidiness(false);
            return trouble.empty() ? AfterRetry(_scenario.Act(_box)) : trouble;
        }
        for (const char* key : {"Changed", "Fresh"})
            if (_box.Read(repository, key, 0) != 2) return "memory has lost a change";
        if (std::string trouble = Locks(repository); !trouble.empty()) return trouble + " while it runs";
        if (std::string trouble = Tidiness(struck.calls == Faults::Unlink); !trouble.empty()) return trouble;
        const std::string target = _scenario.Target();
        const bool isNew = TreeOf(_box.root)[target] == _after;
        if (isNew != (receipt != Receipt::Refused)) return "the receipt does not tell the truth";
        if (fault.isHarmless) {
            if (receipt != Receipt::Durable) return "a save was refused without need";
            if (!_scenario.isDamaged && !_box.diagnostics.empty()) return "something was said without need";
        }
        if (receipt == Receipt::Refused && _box.Said("were not saved") == 0) return "the refusal is not said";
        if (isOfSave && receipt == Receipt::Visible) return "a save is half safe";
        const auto isSafe = [&] {
            const std::string bytes = _box.Bytes(_box.root / target);
            const auto holds = [&](const PowerCut::Disk& disk) { return Holds(disk, bytes); };
            return std::ranges::all_of(cut.States(true), holds);
        };
        if (receipt == Receipt::Durable && !isSafe())
            return "durable was said, and a power cut takes it away";
        if (receipt == Receipt::Visible) {
            Faults::Arm({"no flush", Faults::Flush, Effect::Error, EIO, true}, 1, _box.root.string());
            repository.SaveRepository(nullptr);
            Faults::Disarm();
            if (repository.LastReceipt() != Receipt::Visible) return "a flush is owed, and nothing is said";
            repository.SaveRepository(nullptr);
            if (!isSafe()) return "the flush that is owed is not made good";
        }
        if (receipt != Receipt::Refused) return AfterRetry(repository);
        if (repository.SaveRepository(nullptr) != S_OK) return "the next save is refused too";
        return isSafe() ? AfterRetry(repository) : "a power cut takes the next save away";
    }

    bool Holds(const PowerCut::Disk& disk, const std::string& bytes) const
    {
        const auto found = disk.find((_box.root / _scenario.Target()).string());
        return found != disk.end() && found->second == bytes;
    }

    std::string Locks(const KivSettingRepository& repository) const
    {
        return _scenario.isFirst ? std::string() : OpenLocks(repository);
    }

    // Nothing but the written file has changed, and that is the old or the new one.
    std::string Tidiness(bool mayLitter) const
    {
        Tree now = TreeOf(_box.root);
        const auto was = _before.find(_scenario.Target());
        const auto is = now.find(_scenario.Target());
        if (is == now.end() ? was != _before.end()
                            : is->second != _after && (was == _before.end() || is->second != was->second))
            return "the file is neither the old nor the new one";
        bool hasAside = false;
        for (const auto& [name, text] : now) {
            if (name == _scenario.Target() || name.starts_with("cache/") || IsLock(name)) continue;
            hasAside = hasAside || (IsAside(name) && BytesIn(text) == BytesIn(was->second));
            if (const auto found = _before.find(name); found != _before.end()) {
                if (found->second != text) return name + " has changed";
            } else if (IsAside(name) ? !IsAsideOf(BytesIn(was->second), BytesIn(text))
                                     : !(IsLitter(name) && mayLitter)) {
                return name + " is litter";
            }
        }
        for (const auto& [name, text] : _before)
            if (!now.contains(name) && !name.starts_with("cache/")) return name + " is gone";
        const bool isNew = is != now.end() && is->second == _after;
        return _scenario.isDamaged && isNew && !hasAside ? "what was damaged is not set aside" : "";
    }

    std::string AfterRetry(KivSettingRepository& repository)
    {
        if (repository.LastReceipt() == Receipt::Refused) return "the next start cannot save";
        if (TreeOf(_box.root)[_scenario.Target()] != _after) return "the next save does not store it";
        if (std::string trouble = Tidiness(false); !trouble.empty()) return trouble + " after the next save";
        KivSettingRepository::SetEditedLayer({});
        if (std::string trouble = Locks(_box.Reopen()); !trouble.empty())
            return trouble + " at the next start";
        if (_scenario.isFirst) return {};
        std::filesystem::rename(_box.root / "company", _box.root / "away");
        if (std::string trouble = Locks(_box.Reopen()); !trouble.empty())
            return trouble + " where copies count";
        return {};
    }

    const Scenario& _scenario;
    const std::string& _after;
    KivSettingsSandbox _box;
    Tree _before;
    bool _isCrash = false;
};

class EveryFault : public testing::TestWithParam<std::size_t> {};

// At every call of a load and a save to the system.
TEST_P(EveryFault, LosesNothingAndTellsTheTruth)
{
    const Scenario& scenario = kScenarios[GetParam()];
    std::string after;
    {
        KivSettingsSandbox box;
        scenario.Prepare(box);
        ASSERT_EQ(scenario.Act(box).LastReceipt(), Receipt::Durable);
        after = TreeOf(box.root)[scenario.Target()];
    }
    for (const Fault& fault : kFaults) {
        std::map<std::string, std::string> troubles;
        bool hasStruck = true;
        int at = 0;
        while (hasStruck) {
            const std::string trouble = OneFault(scenario, after).Trouble(fault, ++at, hasStruck);
            if (!trouble.empty()) troubles[trouble] += ' ' + std::to_string(at);
        }
        for (const auto& [trouble, calls] : troubles)
            ADD_FAILURE() << trouble << ": " << fault.name << " at" << calls;
        EXPECT_TRUE(at > 1 || scenario.isFirst) << fault.name << " has never struck";
    }
}

INSTANTIATE_TEST_SUITE_P(All, EveryFault, testing::Range<std::size_t>(0, kScenarios.size()),
                         [](const auto& made) {
                             std::string name = kScenarios[made.param].name;
                             std::erase(name, ' ');
                             return name;
                         });

} // namespace
