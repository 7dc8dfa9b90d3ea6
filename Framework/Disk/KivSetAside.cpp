#include "Disk/KivSetAside.h"

#include "Disk/KivAtomicFile.h"
#include "Disk/KivFileContent.h"
#include "Disk/KivPath.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <dirent.h>
#include <memory>
#include <vector>

namespace {

constexpr std::size_t kMostCopies = 3;

std::string EndingOf(unsigned number)
{
    return ".damaged-" + std::to_string(number);
}

// The numbers of the copies, oldest first. 0, or the error.
int FindCopies(const KivFilePlace& file, std::vector<unsigned>& numbers)
{
    const KivUnicodeString directory(KivDirectoryOf(file.Path().View()));
    const std::string prefix = std::string(file.Name().View()) + ".damaged-";
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(
        opendir(directory.IsEmpty() ? "." : directory.ConvertToChar()), &closedir);
    if (!stream) return errno;
    errno = 0;
    while (const dirent* const entry = readdir(stream.get())) {
        const std::string_view name = entry->d_name;
        if (!name.starts_with(prefix)) continue;
        unsigned number = 0;
        const char* const last = name.data() + name.size();
        const auto read = std::from_chars(name.data() + prefix.size(), last, number);
        if (read.ec == std::errc{} && read.ptr == last) numbers.push_back(number);
    }
    const int error = errno;
    std::sort(numbers.begin(), numbers.end());
    return error;
}

} // namespace

int KivSetAside(const KivFilePlace& file, std::string_view bytes, KivUnicodeString& where)
{
    where = {};
    std::vector<unsigned> numbers;
    if (const int error = FindCopies(file, numbers)) return error;
    for (const unsigned number : numbers) {
        const KivFileContent copy = KivReadFile(file.Path() + EndingOf(number).c_str());
        if (copy.state == KivFileContent::State::Read && copy.text == bytes) return 0;
    }
    const unsigned next = numbers.empty() ? 1 : numbers.back() + 1;
    if (const int error = KivWriteNewFile(file, EndingOf(next), bytes)) return error;
    where = file.Path() + EndingOf(next).c_str();
    numbers.push_back(next);
    for (std::size_t i = 0; i + kMostCopies < numbers.size(); ++i)
        unlinkat(file.Directory(), (file.Name() + EndingOf(numbers[i]).c_str()).ConvertToChar(), 0);
    return 0;
}
