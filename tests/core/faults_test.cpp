// Errors leave nothing half written; bags and numbers are not trusted.

#include <zor/tests/core/text_box_fixture.h>

#include <limits>

namespace zor::tests {
namespace {

TEST(Errors, HoldWhateverTheyAreTold)
{
    const RunTimeError error(ErrorNumber::NoSuchMember, std::string_view("a\0b", 3));
    EXPECT_STREQ(error.what(), "no such property or method: a b");
    EXPECT_EQ(error.of("box", "member").reason(), error.what());
    EXPECT_EQ(failureText(nullptr), "no failure");
}

TEST(Bags, HoldNothingUnderANameThatHasItsDefaultAgain)
{
    platform::headless::MemoryPropertyBag bag;
    bag.WriteProperty("CFail", true, false);
    bag.WriteProperty("CFail", false, false);
    EXPECT_TRUE(bag.entries().empty());
}

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
