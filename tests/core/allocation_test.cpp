// The value path of a text box allocates nothing: ten thousand controls are refreshed many times a second.

#include "tests/core/text_box_fixture.h"

#include <cstdlib>
#include <new>

namespace {

bool counting = false;
int allocations = 0;

void* allocate(std::size_t size)
{
    if (counting)
        ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace zor::tests {
namespace {

struct Listener : __ctx_ZorTextBox {
    void OutputValueChange() override { ++outputs; }
    int outputs = 0;
};

TEST_F(TextBoxTest, AValueIsShownAndHandedBackWithoutAllocation)
{
    Listener listener;
    box->subscribe(listener);
    box->OutputUnit(LgthU_Mtr);
    box->DeviceValue(1.5);
    allocations = 0;
    counting = true;
    for (int i = 0; i < 100; ++i)
        box->DeviceValue(12345.25 * i);
    counting = false;
    EXPECT_EQ(allocations, 0);
    EXPECT_EQ(listener.outputs, 101);
    counting = true;
    auto* probe = new int(1);
    counting = false;
    delete probe;
    EXPECT_EQ(allocations, 1) << "the counter counts";
    box->unsubscribe(listener);
}

} // namespace
} // namespace zor::tests
