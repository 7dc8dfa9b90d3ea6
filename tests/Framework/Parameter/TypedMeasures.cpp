#include "Parameter/KivControlUnit.h"
#include "Parameter/KivMeasure.h"
#include "Parameter/KivNumberFormat.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <string>

namespace {

constexpr double kUntouched = 77.0;

double Typed(const std::string& text, KivDlgUnit unit)
{
    double stored = kUntouched;
    EXPECT_TRUE(KivMeasure::Read(KivUnicodeString(text), unit, stored)) << text;
    return stored;
}

TEST(TypedMeasures, EveryWayToWriteALength)
{
    struct Case {
        const char* text;
        KivDlgUnit unit;
        double meters;
    };
    const Case cases[] = {
        {"20", KivDlgUnitMillimeter, 0.02},
        {"20mm", KivDlgUnitInch, 0.02},
        {"0.02 m", KivDlgUnitMillimeter, 0.02},
        {"2 cm", KivDlgUnitMillimeter, 0.02},
        {"0,00002 KM", KivDlgUnitMillimeter, 0.02},
        {"1in", KivDlgUnitMillimeter, 0.0254},
        {"1 Inch", KivDlgUnitMillimeter, 0.0254},
        {"3 in.", KivDlgUnitMillimeter, 0.0762},
        {"25.4 mm", KivDlgUnitMillimeter, 0.0254},
        {"25,4", KivDlgUnitMillimeter, 0.0254},
        {" \t+ 25.4\u00A0mm ", KivDlgUnitMeter, 0.0254},
        {"2.54e1\u202Fmm", KivDlgUnitMeter, 0.0254},
        {"\u22125 mm", KivDlgUnitMeter, -0.005},
        {".5", KivDlgUnitMeter, 0.5},
        {"5.", KivDlgUnitMeter, 5.0},
        {"3 1/2", KivDlgUnitMillimeter, 0.0035},
        {"3 1/2\"", KivDlgUnitMillimeter, 0.0889},
        {"3\u00BD", KivDlgUnitInch, 0.0889},
        {"1 / 2 in", KivDlgUnitMillimeter, 0.0127},
        {"2'", KivDlgUnitMillimeter, 0.6096},
        {"2", KivDlgUnitFoot, 0.6096},
        {"2.5 feet", KivDlgUnitMillimeter, 0.762},
        {"2", KivDlgUnitFeetInchOver64, 0.0508},
        {"2", KivDlgUnitFeetDecimalInch, 0.0508},
        {"2' 3 1/2\"", KivDlgUnitMillimeter, 0.6985},
        {"2'-3 1/2\"", KivDlgUnitMillimeter, 0.6985},
        {"2' - 3 1/2", KivDlgUnitFeetInchOver16, 0.6985},
        {"-2'3.5''", KivDlgUnitMillimeter, -0.6985},
        {"2 ft 3,5 in", KivDlgUnitMillimeter, 0.6985},
        {"2\u2032 3\u215C\u2033", KivDlgUnitMillimeter, 27.375 * 0.0254},
        {"2\u2019 14\u201D", KivDlgUnitMillimeter, 38 * 0.0254},
    };
    for (const Case& c : cases) EXPECT_DOUBLE_EQ(Typed(c.text, c.unit), c.meters) << c.text;
    EXPECT_FALSE(std::signbit(Typed("-0", KivDlgUnitMillimeter)));
}

TEST(TypedMeasures, NothingElseIsTakenAndTheValueStays)
{
    const char* const texts[] = {
        "",          " ",       "-",          "abc",       "mm",       "1.234,5", "1,234.5",
        "1.2.3",     "1 234",   "1\u00A0234", "1'234",     "1'1'",     "2''3'",   "2' mm",
        "2' 3mm",    "2'-",     "2' --3",     "2' -3'",    "--5",      "+-5",     "5-",
        "5 mm mm",   "5 mm 3",  "5 mm 3 in",  "5 in 3 ft", "1/0",      "3 1/0\"", "1/2/3",
        "3.5 1/2",   "1e3 1/2", "1\u00BD2",   "1/",        "3 1/",     "/2",      "0x10",
        "1e",        "1e+",     "1e400",      "1e308 km",  "nan",      "inf",     "-infinity mm",
        "1 rad",     "1\u00B0", "1 gr",       "1 s",       "5 parsec", "5 mm2",   "5\xC2",
        "5 F_I_F64", ".",       ",",          "'",         "\"",       "5..",     "5e5e5",
    };
    for (const char* text : texts) {
        double stored = kUntouched;
        EXPECT_FALSE(KivMeasure::Read(text, KivDlgUnitMillimeter, stored)) << text;
        EXPECT_EQ(stored, kUntouched) << text;
    }
    double stored = kUntouched;
    for (const char* text : {"5 mm", "1/2", "2'", "5\u00B0", "1e999"})
        EXPECT_FALSE(KivMeasure::Read(text, KivDlgUnitNone, stored)) << text;
    for (const char* text : {"5 mm", "2'", "3\"", "5 s"})
        EXPECT_FALSE(KivMeasure::Read(text, KivDlgUnitDegree, stored)) << text;
    EXPECT_FALSE(KivMeasure::Read("2 1", KivDlgUnitFoot, stored));
    EXPECT_FALSE(KivMeasure::Read(KivUnicodeString(std::string("5\0mm", 4)), KivDlgUnitMeter, stored));
    EXPECT_FALSE(KivMeasure::Read(KivUnicodeString(std::string(1000000, '1')), KivDlgUnitMeter, stored));
    EXPECT_EQ(stored, kUntouched);
}

// A mark before three digits that is not the locale's is no decimal mark for sure.
TEST(TypedMeasures, WhatMayGroupThousandsIsInDoubt)
{
    struct Case {
        char mark;
        const char* text;
        const char* decimal;
        const char* thousands;
    };
    const Case doubtful[] = {
        {'.', "1,000", "1", "1000"},
        {'.', "-12,340 mm", "-12.34 mm", "-12340 mm"},
        {'.', "2' 1,005\"", "2' 1.005\"", "2' 1005\""},
        {',', "1.000", "1", "1000"},
        {',', "999.001in", "999,001in", "999001in"},
    };
    for (const Case& c : doubtful) {
        KivSetDecimalMark(c.mark);
        const auto doubt = KivMeasure::DoubtOf(c.text);
        ASSERT_TRUE(doubt) << c.text;
        EXPECT_EQ(doubt->decimal, c.decimal);
        EXPECT_EQ(doubt->thousands, c.thousands);
        for (const KivUnicodeString& text : {doubt->decimal, doubt->thousands})
            EXPECT_FALSE(KivMeasure::DoubtOf(text)) << text.View();
    }
    for (const auto& [mark, text] : {std::pair('.', "1.000"),
                                     {'.', "1,0000"},
                                     {'.', "1,00"},
                                     {'.', "0,125"},
                                     {'.', ",125"},
                                     {'.', "1000,000"},
                                     {',', "1,000"}}) {
        KivSetDecimalMark(mark);
        EXPECT_FALSE(KivMeasure::DoubtOf(text)) << text;
    }
    KivSetDecimalMark('.');
}

// Settings hold millimeters, taken as 1000.0 times the meters of a spinner.
TEST(TypedMeasures, MillimetersComeBackExactly)
{
    for (int n = 0; n <= 1000; ++n)
        ASSERT_EQ(Typed(std::to_string(n), KivDlgUnitMillimeter) * 1000.0, static_cast<double>(n));
    EXPECT_EQ(Typed("1", KivDlgUnitInch) * 1000.0, 25.4);
    for (const char* text : {"20", "2 cm", "0.02 m", "20mm"})
        EXPECT_EQ(Typed(text, KivDlgUnitMillimeter) * 1000.0, 20.0) << text;

    // Above, some numbers have no double that gives them back; no neighbor of the answer would do better.
    for (int n = 1001; n <= 20000; ++n) {
        const double meters = Typed(std::to_string(n), KivDlgUnitMillimeter);
        const double error = std::abs(meters * 1000.0 - n);
        ASSERT_LE(error, std::abs(std::nextafter(meters, 1e9) * 1000.0 - n)) << n;
        ASSERT_LE(error, std::abs(std::nextafter(meters, 0.0) * 1000.0 - n)) << n;
    }
}

TEST(TypedMeasures, Angles)
{
    for (int degrees = -720; degrees <= 720; ++degrees) {
        const double radians = Typed(std::to_string(degrees), KivDlgUnitDegree);
        ASSERT_DOUBLE_EQ(radians, static_cast<double>(degrees * std::numbers::pi_v<long double> / 180.0L));
        ASSERT_NEAR(radians * 57.295779513082, degrees, std::abs(degrees) * 6e-15);
    }
    EXPECT_EQ(Typed("180\u00B0", KivDlgUnitRadian), std::numbers::pi);
    EXPECT_EQ(Typed("180\u00BA", KivDlgUnitRadian), std::numbers::pi);
    EXPECT_EQ(Typed("200 gon", KivDlgUnitDegree), std::numbers::pi);
}

// What is shown and taken again as it stands moves the value by no more than the rounding of the text, and is
// never in doubt.
class ShownInALocale : public testing::TestWithParam<char> {
protected:
    void SetUp() override { KivSetDecimalMark(GetParam()); }
    void TearDown() override { KivSetDecimalMark('.'); }
};
INSTANTIATE_TEST_SUITE_P(TypedMeasures, ShownInALocale, testing::Values('.', ','));

TEST_P(ShownInALocale, IsUnderstood)
{
    const double values[] = {0.0,        0.02,      0.0254,     0.3048,     0.304799999, 1.0 / 3, 1.0,
                             12.3456789, 0.9999999, 1e-7,       1e-12,      1e-300,      5e-324,  1234567.891,
                             1e9,        1e12,      2.0e11 / 7, 98765.4321, 1e15,        3.0e20,  1e300};
    for (const KivControlUnit& unit : KivControlUnit::All())
        for (const int precision : {-1, 0, 3, 6, 17, 99})
            for (const double value : values)
                for (const double sign : {1.0, -1.0}) {
                    const double stored = sign * value;
                    const KivUnicodeString text = KivMeasure::Print(stored, unit.number, precision);
                    const int decimals =
                        unit.notation == KivNotation::FeetInchFraction ? 0 : std::clamp(precision, 0, 17);
                    const double step = unit.denominator ? 1.0 / unit.denominator : std::pow(10.0, -decimals);
                    ASSERT_FALSE(KivMeasure::DoubtOf(text)) << text.View();
                    double read = kUntouched;
                    ASSERT_TRUE(KivMeasure::Read(text, unit.number, read)) << text.View();
                    ASSERT_NEAR(read, stored, unit.ToStored(step) * 0.500001 + value * 1e-15) << text.View();
                }
}

TEST(TypedMeasures, AnyTextIsBorne)
{
    const std::string alphabet[] = {
        "1", "0",  "12", ".",  ",",      "/",      "'",    "\"",   "-",      "+",    " ",
        "e", "mm", "in", "ft", "\u00B0", "\u00BD", "\xE2", "\x80", "\u2032", "e308", "9999999999999999999"};
    std::mt19937 random(4711);
    int taken = 0;
    for (int i = 0; i < 100000; ++i) {
        std::string text;
        for (auto parts = random() % 8; parts > 0; --parts) text += alphabet[random() % std::size(alphabet)];
        double stored = kUntouched;
        if (KivMeasure::Read(KivUnicodeString(text), KivDlgUnitFeetInchOver64, stored))
            ++taken;
        else
            ASSERT_EQ(stored, kUntouched) << text;
        ASSERT_TRUE(std::isfinite(stored)) << text;
    }
    EXPECT_GT(taken, 1000);
}

} // namespace
