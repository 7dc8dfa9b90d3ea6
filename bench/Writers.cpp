#include "Settings/KivSettingRepository.h"
#include "Support/KivSettingsSandbox.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

// How long one of eight programs that save the same file over and over waits at worst. The median of the same
// run is the reference.

namespace {

constexpr int kWriters = 8;
constexpr double kAim = 50.0;

using Milliseconds = std::chrono::duration<double, std::milli>;

// Writes the time of each save to times. Whether all were durable.
bool SaveOverAndOver(int writer, double* times, int count)
{
    KivSettingRepository& repository = KivSettingsSandbox::Reopen();
    const std::string key = "Writer" + std::to_string(writer);
    for (int i = 0; i < count; ++i) {
        const auto start = std::chrono::steady_clock::now();
        repository.WriteSetting(key.c_str(), &i, 1, 0);
        repository.SaveRepository(nullptr);
        times[i] = Milliseconds(std::chrono::steady_clock::now() - start).count();
        if (repository.LastReceipt() != KivSettingRepository::Receipt::Durable) return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const bool isSmoke = argc > 1 && std::strcmp(argv[1], "--smoke") == 0;
    const int each = isSmoke ? 5 : 400;
    const auto count = static_cast<std::size_t>(kWriters * each);
    void* const shared =
        mmap(nullptr, count * sizeof(double), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED) return 1;
    auto* const times = static_cast<double*>(shared);

    const KivSettingsSandbox box;
    for (int writer = 0; writer < kWriters; ++writer) {
        if (fork() == 0) _exit(SaveOverAndOver(writer, times + writer * each, each) ? 0 : 1);
    }
    for (int status = 0; wait(&status) > 0;) {
        if (status == 0) continue;
        std::puts("a save of one of the writers was not durable");
        return 1;
    }

    std::sort(times, times + count);
    const double median = times[count / 2], worst = times[count - 1];
    std::printf("%d writers, %d saves each: median %.2f ms, worst %.2f ms, ratio %.1f (aim %.0f)%s\n",
                kWriters, each, median, worst, worst / median, kAim, worst / median > kAim ? "  over" : "");
    return 0;
}
