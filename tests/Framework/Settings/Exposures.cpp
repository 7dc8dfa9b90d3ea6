#include "Disk/KivExposure.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

// One way after the other in which users could change a layer's file, put right again in between.
TEST(Exposures, NameEveryPlaceAndWhatMendsIt)
{
    if (geteuid() != 0) GTEST_SKIP() << "what a mere user makes is exposed to begin with";
    KivSettingsSandbox box;
    const std::string file = box.File("srv/site").string();
    box.Write(file, "lock int Ruler = 1\n");
    const std::string site = (box.root / "srv/site").string(), srv = (box.root / "srv").string();
    const auto found = [&] {
        std::string all;
        for (const KivExposure& exposure : KivFindExposures(KivUnicodeString(file)))
            all += std::string(exposure.path.View()) + ": " + std::string(exposure.text.View()) + "\n";
        return all;
    };
    EXPECT_EQ(found(), "");
    struct Case {
        std::string place;
        mode_t mode;
        uid_t user;
        gid_t group;
        const char* words; // null: nobody who should not can change it
    };
    const Case cases[] = {
        {file, 0646, 0, 0, "every user may write to it; \"chmod o-w\""},
        {site, 0757, 0, 0, "every user may write to it"},
        {srv, 0777, 0, 0, "every user may write to it"},
        {srv, 01777, 0, 0, nullptr},
        {file, 0644, 65534, 0, "it belongs to the user nobody; \"chown root\""},
        {srv, 0755, 65534, 0, "it belongs to the user nobody"},
        {file, 0664, 0, 100, "group"},
        {site, 0775, 0, 4, nullptr},
        {site, 0775, 4, 4, nullptr},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.place + " " + std::to_string(one.mode));
        struct stat before {};
        ASSERT_EQ(stat(one.place.c_str(), &before), 0);
        ASSERT_EQ(chown(one.place.c_str(), one.user, one.group), 0);
        ASSERT_EQ(chmod(one.place.c_str(), one.mode), 0);
        const std::string all = found();
        EXPECT_EQ(all.empty(), one.words == nullptr) << all;
        if (one.words) {
            EXPECT_TRUE(all.starts_with(one.place + ": ") && all.find(one.words) < all.find('\n')) << all;
        }
        ASSERT_EQ(chown(one.place.c_str(), 0, 0), 0);
        ASSERT_EQ(chmod(one.place.c_str(), before.st_mode & 07777), 0);
    }

    // In a directory for everybody: who owns a thing there, and who may be the first to make it.
    chmod(srv.c_str(), 01777);
    ASSERT_EQ(chown(site.c_str(), 65534, 0), 0);
    EXPECT_NE(found().find("nobody; move it to a directory"), std::string::npos) << found();
    std::filesystem::rename(site, box.root / "target");
    EXPECT_NE(found().find("every user may make it; move it"), std::string::npos) << found();
    EXPECT_EQ(found().find("chmod"), std::string::npos) << found();

    // The way through a link, and an access list.
    chmod(srv.c_str(), 0755);
    ASSERT_EQ(chown((box.root / "target").c_str(), 0, 0), 0);
    std::filesystem::create_symlink("../target", site);
    EXPECT_EQ(found(), "");
    chmod((box.root / "target").c_str(), 0777);
    EXPECT_NE(found().find("target: every user"), std::string::npos) << found();
    chmod((box.root / "target").c_str(), 0755);
    const unsigned char list[] = {2, 0,    0,    0,   1,   0,   6,    0, 255, 255, 255, 255, 2,   0,    6,
                                  0, 0xfe, 0xff, 0,   0,   4,   0,    4, 0,   255, 255, 255, 255, 0x10, 0,
                                  6, 0,    255,  255, 255, 255, 0x20, 0, 4,   0,   255, 255, 255, 255};
    if (setxattr(file.c_str(), "system.posix_acl_access", list, sizeof list, 0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    EXPECT_NE(found().find("the user nobody may write to it"), std::string::npos) << found();
}

} // namespace
