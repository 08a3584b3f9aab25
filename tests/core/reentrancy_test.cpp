// What a host's handler may do inside an event without harm.

#include <zor/tests/core/text_box_fixture.h>

#include <functional>

namespace zor::tests {
namespace {

struct Handler : __ctx_ZorTextBox {
    void OutputValueChange() override
    {
        ++outputs;
        if (onOutput)
            onOutput();
    }
    void textChange() override { ++changes; }

    std::function<void()> onOutput;
    int outputs = 0;
    int changes = 0;
};

TEST_F(TextBoxTest, AHandlerThatThrowsIsHeardOfAfterTheControlHasFinished)
{
    Handler thrower;
    Handler witness;
    thrower.onOutput = [] { raiseError(ErrorNumber::Overflow); };
    box->subscribe(thrower);
    box->subscribe(witness);
    std::string said;
    try {
        box->DeviceValue(1234);
    } catch (const RunTimeError& error) {
        said = error.what();
    }
    EXPECT_EQ(said, "ctx_ZorTextBox.OutputValueChange: overflow");
    EXPECT_EQ(witness.outputs, 1) << "the other listener is heard all the same";
    EXPECT_EQ(text(), "123");
    EXPECT_TRUE(box->OutputValue() == Variant(1234));
    EXPECT_FALSE(box->DataModified());
    thrower.onOutput = nullptr;
    EXPECT_NO_THROW(box->DeviceValue(10)) << "the old exception is not thrown again";
    box->unsubscribe(thrower);
    box->unsubscribe(witness);
}

TEST_F(TextBoxTest, AHandlerMayUnsubscribeItselfAndOthers)
{
    Handler first;
    Handler second;
    first.onOutput = [&] {
        box->unsubscribe(first);
        box->unsubscribe(second);
    };
    box->subscribe(first);
    box->subscribe(second);
    box->DeviceValue(10);
    box->DeviceValue(20);
    EXPECT_EQ(first.outputs, 1);
    EXPECT_EQ(second.outputs, 0);
}

TEST_F(TextBoxTest, AHandlerAddedInsideAnEventHearsTheNextOne)
{
    Handler first;
    Handler late;
    first.onOutput = [&] {
        if (first.outputs == 1)
            box->subscribe(late);
    };
    box->subscribe(first);
    box->DeviceValue(10);
    EXPECT_EQ(late.outputs, 0);
    box->DeviceValue(20);
    EXPECT_EQ(late.outputs, 1);
    box->unsubscribe(first);
    box->unsubscribe(late);
}

TEST_F(TextBoxTest, AHandlerMayDestroyTheControl)
{
    Handler handler;
    Handler witness;
    handler.onOutput = [&] { box.reset(); };
    box->subscribe(handler);
    box->subscribe(witness);
    box->DeviceValue(1234);
    EXPECT_EQ(box, nullptr);
    EXPECT_EQ(witness.outputs, 0) << "a control that is gone says nothing more";
}

} // namespace
} // namespace zor::tests
