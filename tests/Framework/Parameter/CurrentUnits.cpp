#include "Parameter/KivParmEngine.h"
#include "Parameter/KivParmMagnitude.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class CurrentUnits : public testing::Test {
protected:
    ~CurrentUnits() override
    {
        _engine.SetCurrentUnit(kLength, "mm");
        _engine.SetCurrentUnit(kAngle, "deg");
    }

    static constexpr const char* kLength = KivParmDictionary::LengthType;
    static constexpr const char* kAngle = KivParmDictionary::AngleType;
    KivParmEngine& _engine = KivParmEngine::Instance();
};

TEST_F(CurrentUnits, ListenersHearOfChangesAlone)
{
    std::string heard;
    int once = 0;
    int late = 0;
    const auto hear = [&heard](const char* who) {
        return [&heard, who](const KivParmMagnitude& m) {
            heard += std::string(who) + ":" + m.CurrentUnit()->Name().ConvertToChar() + " ";
        };
    };
    once = _engine.AddListener([&](const KivParmMagnitude&) {
        heard += "once ";
        _engine.RemoveListener(once);
        late = _engine.AddListener(hear("late"));
    });
    const int always = _engine.AddListener(hear("always"));
    EXPECT_EQ(_engine.AddListener({}), 0);

    EXPECT_TRUE(_engine.SetCurrentUnit(kLength, "mm"));
    for (const char* word : {"", "deg", "parsec", "mm ", "f i dec"})
        EXPECT_FALSE(_engine.SetCurrentUnit(kLength, word)) << word;
    EXPECT_FALSE(_engine.SetCurrentUnit("MASS", "mm"));
    EXPECT_EQ(heard, "");
    _engine.SetCurrentUnit(kLength, "cm");
    EXPECT_EQ(heard, "once always:CM ");
    _engine.SetCurrentUnit(kAngle, "rad");
    EXPECT_EQ(heard, "once always:CM always:RADIAN late:RADIAN ");
    _engine.RemoveListener(always);
    _engine.RemoveListener(late);
    _engine.SetCurrentUnit(kLength, "m");
    EXPECT_EQ(heard, "once always:CM always:RADIAN late:RADIAN ");
}

} // namespace
