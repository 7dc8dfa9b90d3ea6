#include "Parameter/KivControlUnit.h"
#include "Parameter/KivMeasure.h"
#include "Parameter/KivNumberFormat.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInch = 0.0254;

TEST(ShownMeasures, EveryUnit)
{
    struct Case {
        double stored;
        KivDlgUnit unit;
        int precision;
        const char* text;
    };
    const Case cases[] = {
        {0.02, KivDlgUnitMillimeter, 3, "20 mm"},
        {0.0, KivDlgUnitMillimeter, 3, "0 mm"},
        {-0.0, KivDlgUnitMillimeter, 3, "0 mm"},
        {-1e-9, KivDlgUnitMillimeter, 3, "0 mm"},
        {1e-300, KivDlgUnitMillimeter, 3, "0 mm"},
        {0.1234567, KivDlgUnitMillimeter, 3, "123.457 mm"},
        {0.9999999, KivDlgUnitMeter, 3, "1 m"},
        {0.1, KivDlgUnitMeter, 17, "0.1 m"},
        {1234.5, KivDlgUnitMeter, -5, "1234 m"},
        {0.02, KivDlgUnitCentimeter, 3, "2 cm"},
        {1500.0, KivDlgUnitKilometer, 3, "1.5 km"},
        {1e12, KivDlgUnitMillimeter, 3, "1000000000000000 mm"},
        {1e17, KivDlgUnitMeter, 3, "1e+17 m"},
        {kInfinity, KivDlgUnitMillimeter, 3, "∞ mm"},
        {-kInfinity, KivDlgUnitFeetInchOver64, 3, "-∞ in"},
        {kNoNumber, KivDlgUnitFeetDecimalInch, 3, "? in"},
        {0.02, KivDlgUnitInch, 3, "0.787 in"},
        {0.3048, KivDlgUnitFoot, 3, "1 ft"},
        {0.26179938779914943, KivDlgUnitDegree, 3, "15°"},
        {0.26179938779914943, KivDlgUnitRadian, 3, "0.262 rad"},
        {0.26179938779914943, KivDlgUnitGrade, 3, "16.667 gr"},
        {2.0, KivDlgUnitSecond, 4, "2 s"},
        {2.5, KivDlgUnitNone, 3, "2.5"},
        {2.5, static_cast<KivDlgUnit>(1000), 3, "2.5"},
        {0.0, KivDlgUnitFeetInchOver64, 3, "0\""},
        {27.5 * kInch, KivDlgUnitFeetInchOver64, 0, "2' 3 1/2\""},
        {-27.5 * kInch, KivDlgUnitFeetInchOver16, 3, "-2' 3 1/2\""},
        {24.0 * kInch, KivDlgUnitFeetInchOver64, 3, "2'"},
        {24.5 * kInch, KivDlgUnitFeetInchOver64, 3, "2' 1/2\""},
        {kInch / 64, KivDlgUnitFeetInchOver64, 3, "1/64\""},
        {kInch / 64, KivDlgUnitFeetInchOver16, 3, "0\""},
        {-kInch / 64, KivDlgUnitFeetInchOver16, 3, "0\""},
        {2.999 * kInch, KivDlgUnitFeetInchOver64, 3, "3\""},
        {11.999 * kInch, KivDlgUnitFeetInchOver64, 3, "1'"},
        {-23.98 * kInch, KivDlgUnitFeetInchOver16, 3, "-2'"},
        {1e12, KivDlgUnitFeetInchOver64, 3, "3280839895013' 1 31/64\""},
        {1e20, KivDlgUnitFeetInchOver64, 3, "3.937007874015748e+21 in"},
        {27.5 * kInch, KivDlgUnitFeetDecimalInch, 3, "2' 3.5\""},
        {11.9996 * kInch, KivDlgUnitFeetDecimalInch, 3, "1'"},
        {-35.9996 * kInch, KivDlgUnitFeetDecimalInch, 3, "-3'"},
        {-0.0001 * kInch, KivDlgUnitFeetDecimalInch, 3, "0\""},
    };
    for (const Case& c : cases) EXPECT_EQ(KivMeasure::Print(c.stored, c.unit, c.precision).View(), c.text);
}

TEST(ShownMeasures, NumbersInTheFormatOfASpinner)
{
    const double values[] = {0.0, 1.0, -2.5, 100000.0, 1234567.0, 0.00001, 1e-7, 1.0 / 3, 1e300};
    for (const char* format :
         {"%g", "%G", "%.3f", "%F", "%e", "%+.2E", "%8.3g|", "%-8g|", "%08.2f", "% g", "a%%%g%%"})
        for (const double value : values) {
            char expected[400];
            ASSERT_GT(std::snprintf(expected, sizeof expected, format, value), 0);
            EXPECT_EQ(KivPrintNumber(value, format, 3).View(), expected) << format;
        }
    EXPECT_EQ(KivPrintNumber(2.5, "%lg mm", 3).View(), "2.5 mm");
    EXPECT_EQ(KivPrintNumber(-kInfinity, "%04g", 3).View(), "  -∞");
    for (const char* format : {"", "%", "%s", "%n", "%d", "%*g", "%g %g", "%.g%s", "%.99f", "%999999999999g",
                               "%-", "%.-1f", "plain", "%hg", "%1$g"})
        EXPECT_EQ(KivPrintNumber(2.12345, format, 3).View(), "2.123") << format;
    EXPECT_EQ(KivPrintNumber(2.0, nullptr, 3).View(), "2");

    // Another program's locale: everything that a person reads follows.
    KivSetDecimalMark(',');
    EXPECT_EQ(KivPrintNumber(2.5, "%g mm", 3).View(), "2,5 mm");
    EXPECT_EQ(KivPrintNumber(2.5, nullptr, 3).View(), "2,5");
    EXPECT_EQ(KivMeasure::Print(0.0205, KivDlgUnitMillimeter, 3).View(), "20,5 mm");
    EXPECT_EQ(KivMeasure::Print(1.25e20, KivDlgUnitMeter, 3).View(), "1,25e+20 m");
    KivSetDecimalMark(' ');
    EXPECT_EQ(KivMeasure::Print(27.5 * kInch, KivDlgUnitFeetDecimalInch, 3).View(), "2' 3,5\"");
    KivSetDecimalMark('.');
}

} // namespace
