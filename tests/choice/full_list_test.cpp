// Lists as long as they get.

#include <zor/controls/choice/combo_box/ctx_ZorComboBox.h>
#include <zor/controls/choice/list_box/ctx_ZorListBox.h>
#include <zor/platform/headless/container.h>
#include <zor/tests/error_of.h>

#include <gtest/gtest.h>

namespace zor::tests {
namespace {

constexpr int kMost = 32'767;

TEST(FullList, OfAComboBoxRefusesOneMore)
{
    platform::headless::HeadlessContainer container;
    const auto full = ctx_ZorComboBox::create(container);
    for (int i = 0; i < kMost; ++i)
        full->AddEnumEntry("entry", i);
    EXPECT_EQ(errorOf([&] { full->AddEnumEntry("one more", -1); }), 6);
    EXPECT_TRUE(full->GetEnumEntryCount() == Variant(kMost));
    EXPECT_EQ(full->GetEnumEntryText(-1), "ERROR");
    EXPECT_EQ(full->OutputValue(), kMost - 1);
}

TEST(FullList, OfAListBoxIsAppliedWhoeverMayChoose)
{
    platform::headless::HeadlessContainer container;
    const auto full = ctx_ZorListBox::create(container);
    for (int i = 0; i < kMost; ++i)
        full->AddBitFieldEntry("entry", 0);
    EXPECT_EQ(errorOf([&] { full->AddBitFieldEntry("one more", 1); }), 6);
    full->DeviceValue(1);
    EXPECT_EQ(full->SelCount(), kMost);
    // Marks that nobody may change must not be undone one by one.
    full->ReadOnly(true);
    full->DeviceValue(0);
    EXPECT_EQ(full->SelCount(), 0);
}

} // namespace
} // namespace zor::tests
