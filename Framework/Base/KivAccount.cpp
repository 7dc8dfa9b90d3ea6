#include "Base/KivAccount.h"

#include <cerrno>
#include <optional>
#include <pwd.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr uid_t kFirstPerson = 1000;
constexpr gid_t kAllUsers = 100;

struct Account {
    std::string name, home;
    gid_t group = 0;
};

std::optional<Account> Find(uid_t user)
{
    std::vector<char> texts(1024);
    passwd entry{};
    passwd* found = nullptr;
    while (getpwuid_r(user, &entry, texts.data(), texts.size(), &found) == ERANGE &&
           texts.size() < (1U << 20))
        texts.resize(texts.size() * 2);
    if (!found) return std::nullopt;
    return Account{found->pw_name, found->pw_dir, found->pw_gid};
}

} // namespace

KivUnicodeString KivAccountHome()
{
    const std::optional<Account> account = Find(geteuid());
    return account && account->home.starts_with('/') ? KivUnicodeString(account->home) : KivUnicodeString();
}

KivUnicodeString KivAccountName(uid_t user)
{
    const std::optional<Account> account = Find(user);
    return KivUnicodeString(account ? account->name : std::to_string(user));
}

bool KivIsPersonsAccount(uid_t user)
{
    return user >= kFirstPerson;
}

bool KivIsEverydayGroup(gid_t group)
{
    if (group == kAllUsers) return true;
    const std::optional<Account> account = KivIsPersonsAccount(group) ? Find(group) : std::nullopt;
    return account && account->group == group;
}
