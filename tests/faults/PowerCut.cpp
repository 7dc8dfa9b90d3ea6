#include "PowerCut.h"

#include "Support/KivSettingsSandbox.h"

#include <algorithm>
#include <set>

using Faults::Operation;
using Disk = PowerCut::Disk;

namespace {

std::string Above(const std::string& path)
{
    return path.substr(0, path.rfind('/', path.size() - 2) + 1);
}

struct File {
    std::string flushed, now;
};

// All that has been done up to a moment, and how much of it may be missing.
class Moment {
public:
    explicit Moment(const Disk& before)
    {
        for (const auto& [path, bytes] : before) {
            _before[path] = _names[path] = _files.size();
            _files.push_back({bytes, bytes});
        }
    }

    void Do(const Operation& operation)
    {
        const std::string path = std::filesystem::path(operation.path).lexically_normal().string();
        switch (operation.call) {
        case Faults::Write:
            if (const auto file = _names.find(path); file != _names.end())
                _files[file->second].now = operation.bytes;
            return;
        case Faults::Flush:
            _pending.erase(path + '/');
            if (const auto file = _names.find(path); file != _names.end())
                _files[file->second].flushed = _files[file->second].now;
            return;
        default:
            break;
        }
        const std::filesystem::path to = operation.to;
        Change change{operation.call, path, to.lexically_normal().string(), _files.size()};
        if (change.call == Faults::Directory) change.path += '/';
        if (change.call == Faults::Create || change.call == Faults::Directory) _files.emplace_back();
        Apply(change, _names);
        _changes.push_back(change);
        ++_pending[Above(path)];
    }

    // Every state that it may leave.
    void AddTo(std::set<Disk>& disks) const
    {
        // One choice for each directory with changes that may be missing, and for each file.
        std::vector<std::size_t> sizes, choice;
        for (const auto& [directory, count] : _pending) sizes.push_back(count + 1);
        for (const File& file : _files) sizes.push_back(file.flushed == file.now ? 1 : 4);
        choice.resize(sizes.size());
        for (std::size_t at = 0; at < sizes.size();) {
            disks.insert(With(choice));
            for (at = 0; at < sizes.size() && ++choice[at] == sizes[at]; ++at) choice[at] = 0;
        }
        if (sizes.empty()) disks.insert(With(choice));
    }

private:
    using Names = std::map<std::string, std::size_t>; // each path's file
    struct Change {
        Faults::Call call;
        std::string path, to;
        std::size_t file;
    };

    static void Apply(const Change& change, Names& names)
    {
        if (change.call == Faults::Create || change.call == Faults::Directory) {
            names[change.path] = change.file;
        } else if (const auto found = names.find(change.path); found != names.end()) {
            if (change.call == Faults::Rename) names[change.to] = found->second;
            names.erase(change.path);
        }
    }

    Disk With(const std::vector<std::size_t>& choice) const
    {
        std::map<std::string, std::size_t> missing, left;
        std::size_t at = 0;
        for (const auto& [directory, count] : _pending) missing[directory] = choice[at++];
        Names names = _before;
        for (const Change& change : _changes) ++left[Above(change.path)];
        for (const Change& change : _changes) {
            const std::string directory = Above(change.path);
            if (left[directory]-- > missing[directory]) Apply(change, names);
        }
        Disk disk;
        for (const auto& [path, index] : names) {
            // What lies in a directory that is not there is not there either.
            if (path != _before.begin()->first && !disk.contains(Above(path))) continue;
            const File& file = _files[index];
            const std::size_t how = choice[at + index];
            disk[path] = how == 0   ? file.now
                         : how == 1 ? file.flushed
                         : how == 2 ? file.now.substr(0, file.now.size() / 2)
                                    : std::string(file.now.size(), '\0');
        }
        return disk;
    }

    Names _before, _names;
    std::vector<File> _files;
    std::vector<Change> _changes;
    std::map<std::string, std::size_t> _pending; // how many of a directory's changes are not flushed
};

} // namespace

PowerCut::PowerCut(const std::filesystem::path& root) : _root(root.string())
{
    _before[_root + '/'];
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        if (entry.is_directory())
            _before[entry.path().string() + '/'];
        else if (!entry.is_symlink())
            _before[entry.path().string()] = KivSettingsSandbox::Bytes(entry.path());
    }
    Faults::Record(_root);
}

PowerCut::~PowerCut()
{
    Faults::Record({});
}

std::vector<Disk> PowerCut::States(bool isOver) const
{
    std::set<Disk> disks;
    Moment moment(_before);
    if (!isOver) moment.AddTo(disks);
    for (const Operation& operation : Faults::Recorded()) {
        moment.Do(operation);
        if (!isOver) moment.AddTo(disks);
    }
    if (isOver) moment.AddTo(disks);
    return {disks.begin(), disks.end()};
}

void PowerCut::Put(const Disk& disk) const
{
    std::filesystem::remove_all(_root);
    for (const auto& [path, bytes] : disk) {
        if (path.ends_with('/'))
            std::filesystem::create_directory(path);
        else
            KivSettingsSandbox::Write(path, bytes);
    }
}
