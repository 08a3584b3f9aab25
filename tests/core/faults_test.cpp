// Errors leave nothing half written; bags and numbers are not trusted.

#include <zor/tests/core/text_box_fixture.h>

#include <cstdint>
#include <limits>

namespace zor::tests {
namespace {

using platform::headless::MemoryPropertyBag;

TEST_F(TextBoxTest, AnOverflowingConversionChangesNothing)
{
    box->DeviceValue(1234);
    box->DeviceUnit(LgthU_Mtr);
    EXPECT_EQ(errorOf([&] { box->DeviceValue(1e308); }), 6);
    EXPECT_TRUE(box->DeviceValue() == Variant(1234));
    EXPECT_EQ(text(), "123");
    EXPECT_EQ(errorOf([&] { box->ModifiedValue(-1e308); }), 6);
    box->s_ForceOutputValueUpdate();
    EXPECT_DOUBLE_EQ(box->OutputValue().toDouble(), 0.1234) << "the value that is shown, unrounded";
    EXPECT_EQ(errorOf([&] { box->MinValue(std::numeric_limits<double>::max()); }), 0);
    EXPECT_EQ(errorOf([&] { box->DefaultUnit(LgthU_Mtr); }), 6);
    EXPECT_EQ(box->DefaultUnit(), LgthU_MM);
}

TEST_F(TextBoxTest, InfiniteAndUndefinedNumbersChangeNothing)
{
    box->DeviceValue(1234);
    for (const ENTRY_TYPE entry : {Numeric, Text}) {
        box->EntryType(entry);
        for (const double value :
             {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
              std::numeric_limits<double>::quiet_NaN()}) {
            EXPECT_EQ(errorOf([&] { box->DeviceValue(value); }), 6);
            EXPECT_EQ(errorOf([&] { box->setProperty("DeviceValue", value); }), 6);
            EXPECT_EQ(errorOf([&] { box->ModifiedValue(value); }), 6);
            EXPECT_EQ(errorOf([&] { box->MaxValue(value); }), 6);
            EXPECT_TRUE(box->DeviceValue() == Variant(1234));
            EXPECT_TRUE(box->OutputValue() == Variant(1234));
            EXPECT_EQ(text(), "123");
            EXPECT_EQ(box->MaxValue(), 0);
        }
    }
    // What was last shown from the device is still what an edit returns to.
    box->DataChanged(true);
    EXPECT_EQ(field().toolTip(), "Data Changed by other user  :  , 123");
    MemoryPropertyBag bag;
    bag.set("DeviceValue", std::numeric_limits<double>::infinity());
    EXPECT_EQ(errorOf([&] { ctx_ZorTextBox::create(container)->readProperties(bag); }), 6);
}

TEST_F(TextBoxTest, AnEntryThatOverflowsIsNeverHandedBack)
{
    box->DeviceUnit(LgthU_1By10_MM);
    box->OutputUnit(LgthU_Mtr);
    box->InvalidEntryEnable(false);
    box->DeviceValue(10);
    const std::string huge = "9" + std::string(307, '0');
    hands.type(field(), huge);
    EXPECT_EQ(errorOf([&] { hands.blur(field()); }), 6);
    EXPECT_TRUE(box->InvalidEntry());
    EXPECT_TRUE(box->OutputValue() == Variant(10));
}

TEST_F(TextBoxTest, AnyIntegerMayArriveAsAnEnumerationOrANumber)
{
    for (const std::int32_t value :
         {-1, 14, 53, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
        for (const char* name :
             {"UnitType", "DeviceUnit", "DefaultUnit", "EntryType", "RegisterType", "OutputUnit"})
            box->setProperty(name, value);
        box->DeviceValue(12);
        const auto number = static_cast<std::int16_t>(value);
        EXPECT_FALSE(box->fb_SetMessage(number, "x"));
        EXPECT_EQ(box->fc_GetMessageID(number), "MSG_INVALIDENTRYTO");
    }
    EXPECT_EQ(errorOf([&] { box->setProperty("MaxLength", 70000); }), 6);
    EXPECT_EQ(box->MaxLength(), 10);
}

TEST_F(TextBoxTest, LongAndBrokenTextsAreShownAsTheyAre)
{
    const std::string texts[] = {std::string(10 << 20, 'x'), std::string("a\0b", 3), "\xff\xfe\xc0\xaf",
                                 std::string(400, '7')};
    box->EntryType(Text);
    for (const std::string& wanted : texts) {
        box->DeviceValue(wanted);
        EXPECT_TRUE(text() == wanted);
        EXPECT_TRUE(box->OutputValue() == Variant(wanted));
    }
}

} // namespace
} // namespace zor::tests
