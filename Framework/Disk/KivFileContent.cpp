#include "Disk/KivFileContent.h"

#include "Disk/KivUninterrupted.h"

#include <algorithm>
#include <fcntl.h>
#include <system_error>

namespace {

KivFileContent Unreadable(KivUnicodeString reason)
{
    KivFileContent content;
    content.state = KivFileContent::State::Unreadable;
    content.reason = std::move(reason);
    return content;
}

} // namespace

KivUnicodeString KivErrorWords(const char* what, int error)
{
    return KivUnicodeString(std::string(what) + ": " + std::generic_category().message(error));
}

KivFileContent KivReadFile(const KivUnicodeString& path)
{
    KivFileHandle handle(KivUninterrupted(
        [&] { return open(path.ConvertToChar(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
    if (!handle.IsOpen()) {
        if (errno != ENOENT) return Unreadable(KivErrorWords("the file cannot be opened", errno));
        return {};
    }
    struct stat status {};
    if (fstat(handle.Get(), &status) != 0) return Unreadable(KivErrorWords("the file cannot be read", errno));
    if (S_ISDIR(status.st_mode)) return Unreadable("a directory stands in place of the file");
    if (!S_ISREG(status.st_mode)) return Unreadable("a pipe or device stands in place of the file");
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > KivMostBytes) {
        return Unreadable(KivUnicodeString("the file is too large: " + std::to_string(size) +
                                           " bytes, at most " + std::to_string(KivMostBytes)));
    }

    KivFileContent content;
    content.text.resize(size);
    std::size_t filled = 0;
    while (filled < size) {
        const ssize_t count =
            KivUninterrupted([&] { return read(handle.Get(), content.text.data() + filled, size - filled); });
        if (count < 0) return Unreadable(KivErrorWords("the file cannot be read", errno));
        if (count == 0) break; // cut shorter since: what is left is what there is
        filled += static_cast<std::size_t>(count);
    }
    content.text.resize(filled);
    const auto lines = static_cast<std::size_t>(std::count(content.text.begin(), content.text.end(), '\n'));
    if (lines > KivMostLines) {
        return Unreadable(KivUnicodeString("the file is too large: " + std::to_string(lines) +
                                           " lines, at most " + std::to_string(KivMostLines)));
    }
    content.state = KivFileContent::State::Read;
    content.stamp = KivFileStamp(status);
    content.handle = std::move(handle);
    return content;
}
