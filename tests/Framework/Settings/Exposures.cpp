#include "Disk/KivExposure.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <sys/xattr.h>
#include <unistd.h>

namespace {

// What an access list grants; kivsettings shows the rest.
TEST(Exposures, AreFoundInAccessLists)
{
    if (geteuid() != 0) GTEST_SKIP() << "what a mere user makes is exposed to begin with";
    KivSettingsSandbox box;
    const std::string file = box.File("site").string();
    box.Write(file, "lock int Ruler = 1\n");
    const auto found = [&] {
        std::string all;
        for (const KivExposure& exposure : KivFindExposures(KivUnicodeString(file)))
            all += exposure.text.View();
        return all;
    };
    EXPECT_EQ(found(), "");
    const unsigned char list[] = {2, 0,    0,    0,   1,   0,   6,    0, 255, 255, 255, 255, 2,   0,    6,
                                  0, 0xfe, 0xff, 0,   0,   4,   0,    4, 0,   255, 255, 255, 255, 0x10, 0,
                                  6, 0,    255,  255, 255, 255, 0x20, 0, 4,   0,   255, 255, 255, 255};
    if (setxattr(file.c_str(), "system.posix_acl_access", list, sizeof list, 0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    EXPECT_NE(found().find("the user nobody may write to it"), std::string::npos) << found();
}

} // namespace
