#include "model/keyed_list.h"

#include <gmock/gmock.h>
#include <vector>

namespace nimbrel {
namespace {

using testing::ElementsAre;

std::vector<int> valuesOf(const KeyedList<int>& list) {
  std::vector<int> values;
  for (const auto& entry : list) values.push_back(entry.second);
  return values;
}

KeyedList<int> sample() {
  KeyedList<int> list;
  for (const int number : {7, 3, 5}) list.add("I" + std::to_string(number), number);
  return list;
}

TEST(KeyedList, KeepsTheOrderOfAdding) {
  KeyedList<int> list = sample();
  list.remove("I7");
  list.add("I7", 70);
  EXPECT_THAT(valuesOf(list), ElementsAre(3, 5, 70));
  EXPECT_EQ(*list.at(1), 3);
  EXPECT_EQ(list.at(0), nullptr);
  EXPECT_EQ(list.at(4), nullptr);
}

TEST(KeyedList, RefusesAKeyThatIsTaken) {
  KeyedList<int> list = sample();
  EXPECT_THROW(list.add("I3", 30), std::invalid_argument);
  EXPECT_THAT(valuesOf(list), ElementsAre(7, 3, 5));
  EXPECT_EQ(*list.find("I3"), 3);
}

TEST(KeyedList, RemovesByItsOwnKeyAndIgnoresForeignOnes) {
  KeyedList<int> list = sample();
  list.remove(list.begin()->first);
  list.remove("I99");
  EXPECT_EQ(list.find("I7"), nullptr);
  EXPECT_THAT(valuesOf(list), ElementsAre(3, 5));
}

TEST(KeyedList, TellsKeysApartThatDifferOnlyInTheMiddle) {
  KeyedList<int> list;
  for (int i = 0; i < 500; ++i) list.add("I0000000" + std::to_string(1000 + i) + "00000001", i);
  for (int i = 0; i < 500; ++i) {
    EXPECT_EQ(*list.find("I0000000" + std::to_string(1000 + i) + "00000001"), i);
  }
}

}  // namespace
}  // namespace nimbrel
