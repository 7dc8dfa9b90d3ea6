#include "Disk/KivFileContent.h"

#include "Base/KivTextLines.h"
#include "Disk/KivFileHandle.h"

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

KivUnicodeString TooLarge(std::size_t count, const char* what, std::size_t most)
{
    return KivUnicodeString("the file is too large: " + std::to_string(count) + " " + what + ", at most " +
                            std::to_string(most));
}

KivFileHandle Open(const KivUnicodeString& path, KivLastLink last)
{
    const int noLink = last == KivLastLink::Refuse ? O_NOFOLLOW : 0;
    return KivFileHandle(KivUninterrupted(
        [&] { return open(path.ConvertToChar(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | noLink); }));
}

// isWhole: every byte that the file has was read, and no more came.
KivFileContent ReadOnce(const KivUnicodeString& path, KivLastLink last, bool& isWhole)
{
    isWhole = true;
    KivFileHandle handle = Open(path, last);
    if (!handle.IsOpen()) {
        if (errno != ENOENT) return Unreadable(KivErrorMessage("the file cannot be opened", errno));
        return {};
    }
    struct stat status {};
    if (fstat(handle.Get(), &status) != 0)
        return Unreadable(KivErrorMessage("the file cannot be read", errno));
    if (S_ISDIR(status.st_mode)) return Unreadable("a directory stands in place of the file");
    if (!S_ISREG(status.st_mode)) return Unreadable("a pipe or device stands in place of the file");
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > KivMostBytes) return Unreadable(TooLarge(size, "bytes", KivMostBytes));

    KivFileContent content;
    content.text.resize(size + 1); // room for what should not come
    std::size_t filled = 0;
    while (filled <= size) {
        const ssize_t count = KivUninterrupted(
            [&] { return read(handle.Get(), content.text.data() + filled, size + 1 - filled); });
        if (count < 0) return Unreadable(KivErrorMessage("the file cannot be read", errno));
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    isWhole = filled == size;
    if (!isWhole) return Unreadable("the file has more or less bytes than it says, as if being written");
    content.text.resize(size);
    if (KivUnicodeString trouble = KivSizeTrouble(content.text); !trouble.IsEmpty())
        return Unreadable(std::move(trouble));
    content.state = KivFileContent::State::Read;
    content.stamp = KivFileStamp(status);
    content.handle = std::move(handle);
    return content;
}

} // namespace

KivUnicodeString KivErrorMessage(const char* what, int error)
{
    return KivUnicodeString(std::string(what) + ": " + std::generic_category().message(error));
}

KivUnicodeString KivSizeTrouble(std::string_view text)
{
    if (text.size() > KivMostBytes) return TooLarge(text.size(), "bytes", KivMostBytes);
    const std::size_t lines = KivCountLineEnds(text);
    return lines > KivMostLines ? TooLarge(lines, "lines", KivMostLines) : KivUnicodeString();
}

KivFileContent KivReadFile(const KivUnicodeString& path, KivLastLink last)
{
    bool isWhole = true;
    KivFileContent content = ReadOnce(path, last, isWhole);
    return isWhole ? std::move(content) : ReadOnce(path, last, isWhole);
}
