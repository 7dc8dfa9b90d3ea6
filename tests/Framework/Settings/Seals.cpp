#include "Base/KivChecksum.h"
#include "Settings/KivSettingSeal.h"

#include <gtest/gtest.h>

namespace {

using State = KivSettingSeal::State;

TEST(Seals, EveryCutAndEveryFlippedBitShows)
{
    for (const std::string end : {"\n", "\r\n", "\r"}) {
        for (const std::string mark : {"", "\xef\xbb\xbf"}) {
            std::string text = mark;
            for (const char* line : {"# ours", "lock int Ruler = 1", "lock Dim*", "", "string S = \"x\""})
                text += line + end;
            const std::string sealed = KivSettingSeal::Put(text);
            ASSERT_EQ(KivSettingSeal::StateOf(sealed), State::Fits);
            EXPECT_EQ(KivSettingSeal::StateOf(text), State::None);
            EXPECT_EQ(KivSettingSeal::StateOf(sealed + end), State::Broken);
            for (std::size_t cut = std::max<std::size_t>(mark.size(), 1); cut < sealed.size(); ++cut)
                EXPECT_EQ(KivSettingSeal::StateOf(sealed.substr(0, cut)), State::Broken) << cut;
            for (std::size_t bit = 0; bit < 8 * sealed.size(); ++bit) {
                std::string flipped = sealed;
                flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << bit % 8));
                EXPECT_EQ(KivSettingSeal::StateOf(flipped), State::Broken) << flipped;
            }
        }
    }
    // The same in every version and on every machine, else every seal would be broken.
    EXPECT_EQ(KivChecksumText(""), "96534180dd7a79a4");
    EXPECT_EQ(KivChecksumText("Some text that is longer than one block of them"), "b6e5580f014c6b6a");
}

} // namespace
