#include "Base/KivListOf.h"

#include <gtest/gtest.h>

namespace {

TEST(Lists, DropDuplicatesAndBearComparisonsThatAreNoOrdering)
{
    KivListOfUnicodeString list;
    for (int i = 0; i < 5000; ++i) list.Append(KivUnicodeString(std::to_string(i * 7919 % 250)));
    KivListOfUnicodeString once = list;
    once.Append("0");
    once.RemoveDuplicates();
    ASSERT_EQ(once.Size(), 250);
    EXPECT_TRUE(once[1] == "0" && once[2] == "169") << "the first of each, in place";

    list.QuickSort([](const auto* a, const auto* b) { return *a > *b ? 1 : -1; });
    ASSERT_EQ(list.Size(), 5000);
    for (int i = 2; i <= list.Size(); ++i) ASSERT_LE(list[i - 1].View(), list[i].View());

    list.QuickSort([](const auto*, const auto*) { return 1; });
    EXPECT_EQ(list.Size(), 5000);
}

TEST(Strings, PartsAreCutAtTheEnds)
{
    const KivUnicodeString text("a.XML");
    KivUnicodeString lower = text;
    lower.ToLower();
    EXPECT_EQ(lower, "a.xml");
    EXPECT_EQ(text.SubString(1, 100), ".XML");
    EXPECT_TRUE(text.SubString(-1, 2).IsEmpty());
    EXPECT_TRUE(text.SubString(9, 2).IsEmpty());
    EXPECT_TRUE(KivUnicodeString(static_cast<const char*>(nullptr)).IsEmpty());
}

} // namespace
