#include <gtest/gtest.h>
#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <vector>

namespace kalvora {
namespace {

DWORD stateAt(const void* address) {
  MEMORY_BASIC_INFORMATION information{};
  VirtualQuery(address, &information, sizeof information);
  return information.State;
}

TEST(LargeBlocks, aLargeBlockGoesStraightBackToTheSystem) {
  // As large as a skin's picture, which the C library would take from its heap, with a block behind
  // it.
  auto block = std::make_unique<std::vector<std::uint8_t>>(200'000, std::uint8_t{7});
  const std::vector<std::uint8_t> behind(1'000, std::uint8_t{8});
  const void* const middle = block->data() + block->size() / 2;
  EXPECT_EQ(stateAt(middle), static_cast<DWORD>(MEM_COMMIT));
  block.reset();
  EXPECT_EQ(stateAt(middle), static_cast<DWORD>(MEM_FREE));
  EXPECT_EQ(behind.back(), 8);
}

TEST(LargeBlocks, blocksOfAllSizesAreAlignedAndTheirOwn) {
  std::vector<std::vector<std::uint8_t>> blocks;
  for (std::size_t size = 1; size < 300'000; size = size * 5 / 4 + 1) {
    blocks.emplace_back(size, static_cast<std::uint8_t>(size));
  }
  for (const auto& block : blocks) {
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block.data()) % __STDCPP_DEFAULT_NEW_ALIGNMENT__,
              0U);
    const auto expected = static_cast<std::uint8_t>(block.size());
    EXPECT_EQ(block.front(), expected);
    EXPECT_EQ(block.back(), expected);
  }
}

TEST(LargeBlocks, whatCannotBeHadIsTold) {
  volatile std::size_t tooMuch = std::numeric_limits<std::size_t>::max();
  EXPECT_THROW(::operator delete(::operator new(tooMuch)), std::bad_alloc);
  tooMuch = std::numeric_limits<std::size_t>::max() / 2;
  EXPECT_THROW(::operator delete(::operator new(tooMuch)), std::bad_alloc);
  EXPECT_EQ(::operator new(tooMuch, std::nothrow), nullptr);
}

}  // namespace
}  // namespace kalvora
