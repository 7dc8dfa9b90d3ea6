#include "Base/KivDiagnosticScope.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

namespace {

TEST(Diagnostics, GoToTheNewestWhoTakesThemInWhateverOrderScopesEnd)
{
    std::vector<KivDiagnostic> all;
    const KivDiagnosticScope outermost(all);
    std::string heard;
    std::optional<KivDiagnosticScope> errors, own, passing;
    errors.emplace([&](const KivDiagnostic& said) {
        heard += "e";
        return said.severity == KivDiagnostic::Severity::Error;
    });
    // It ends while it hears, and another one with it.
    own.emplace([&](const KivDiagnostic&) {
        heard += "o";
        errors.reset();
        own.reset();
        heard += "!";
        return false;
    });
    passing.emplace([&](const KivDiagnostic&) {
        heard += "p";
        return false;
    });
    KivReport({});
    EXPECT_EQ(heard, "po!");
    EXPECT_EQ(all.size(), 1U);
    errors.emplace([&](const KivDiagnostic&) { return true; });
    passing.reset(); // below one that stays
    EXPECT_THROW(
        {
            std::vector<KivDiagnostic> lost;
            const KivDiagnosticScope scope(lost);
            throw std::runtime_error("in between");
        },
        std::runtime_error);
    KivReport({});
    EXPECT_EQ(all.size(), 1U);
    errors.reset();
    KivReport({});
    EXPECT_EQ(all.size(), 2U);
}

} // namespace
