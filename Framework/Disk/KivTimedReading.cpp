#include "Disk/KivTimedReading.h"

#include "Disk/KivPath.h"
#include "Disk/KivTimedCalls.h"

std::vector<KivFileContent> KivReadInTime(const std::vector<KivUnicodeString>& paths,
                                          std::chrono::milliseconds limit,
                                          const std::function<KivFileContent(const KivUnicodeString&)>& read)
{
    std::vector<KivFileContent> contents(paths.size());
    std::vector<KivUnicodeString> far;
    std::vector<std::size_t> indices; // of those
    for (std::size_t index = 0; index < paths.size(); ++index) {
        if (KivIsNearPath(paths[index])) {
            contents[index] = read(paths[index]); // a thread would take longer
        } else {
            far.push_back(paths[index]);
            indices.push_back(index);
        }
    }
    if (far.empty()) return contents;

    // Used by the thread of the user interface alone.
    static auto& calls = *new KivTimedCalls<KivFileContent>;
    std::vector<std::optional<KivFileContent>> answers = calls.Make(far, read, limit);
    for (std::size_t i = 0; i < far.size(); ++i) {
        KivFileContent& content = contents[indices[i]];
        if (answers[i]) {
            content = std::move(*answers[i]);
        } else {
            content.state = KivFileContent::State::Unreadable;
            content.reason = "the file system does not answer in time";
        }
    }
    return contents;
}

bool KivAnswersInTime(const KivUnicodeString& path, std::chrono::milliseconds limit)
{
    if (KivIsNearPath(path)) return true;
    const auto read = [](const KivUnicodeString& file) { return KivReadFile(file).state; };
    static auto& calls = *new KivTimedCalls<KivFileContent::State>;
    return calls.Make({path}, read, limit)[0].has_value();
}
