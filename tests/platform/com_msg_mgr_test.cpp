#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/ComMsgMgr.h"

namespace {

using testing::ElementsAre;

struct Message {
  int type;
  std::string id;
  unsigned int mask;
  std::string text;
  bool operator==(const Message&) const = default;
};

std::vector<Message> received;

void receive(int type, const char* id, unsigned int mask, const char* text) {
  received.push_back({type, id, mask, text});
}

void ignore(int /*type*/, const char* /*id*/, unsigned int /*mask*/, const char* /*text*/) {}

// Restores the default sink after each test.
class ComMsgMgrTest : public testing::Test {
 protected:
  void SetUp() override { received.clear(); }
  void TearDown() override { ComMsgMgr::setSink(nullptr); }
};

TEST_F(ComMsgMgrTest, PrintsTheTextAloneToStandardErrorByDefault) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  ComMsgMgr::sendMsg::eval(1, "sdk", 0x20000000, "%s: %d\n", "ovrin_0", 42);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "ovrin_0: 42\n");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(ComMsgMgrTest, HandsTheWholeMessageToTheSinkInstead) {
  ComMsgMgr::setSink(receive);
  testing::internal::CaptureStderr();
  ComMsgMgr::sendMsg::eval(1, "sdk", 0x20000000, "%s\n", "broken");
  ComMsgMgr::sendMsg::eval(-2, "other", 0xFFFFFFFF, "%u%% of %c", 7U, 'x');
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_THAT(received,
              ElementsAre(Message{1, "sdk", 0x20000000, "broken\n"}, Message{-2, "other", 0xFFFFFFFF, "7% of x"}));
}

TEST_F(ComMsgMgrTest, ReturnsTheSinkBefore) {
  const ComMsgMgr::Sink print = ComMsgMgr::setSink(receive);
  ASSERT_NE(print, nullptr);
  EXPECT_NE(print, &receive);
  EXPECT_EQ(ComMsgMgr::setSink(ignore), &receive);
  EXPECT_EQ(ComMsgMgr::setSink(print), &ignore);
  EXPECT_EQ(ComMsgMgr::setSink(receive), print);
}

TEST_F(ComMsgMgrTest, RestoresTheDefaultForANullSink) {
  const ComMsgMgr::Sink print = ComMsgMgr::setSink(receive);
  EXPECT_EQ(ComMsgMgr::setSink(nullptr), &receive);
  EXPECT_EQ(ComMsgMgr::setSink(nullptr), print);
  testing::internal::CaptureStderr();
  ComMsgMgr::sendMsg::eval(1, "sdk", 0, "again\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "again\n");
  EXPECT_THAT(received, ElementsAre());
}

TEST_F(ComMsgMgrTest, RestoresTheSinkThatItReturned) {
  ComMsgMgr::setSink(receive);
  const ComMsgMgr::Sink before = ComMsgMgr::setSink(ignore);
  ComMsgMgr::sendMsg::eval(1, "sdk", 0, "unheard");
  ComMsgMgr::setSink(before);
  ComMsgMgr::sendMsg::eval(1, "sdk", 0, "heard");
  EXPECT_THAT(received, ElementsAre(Message{1, "sdk", 0, "heard"}));
}

TEST_F(ComMsgMgrTest, NeverCutsAText) {
  ComMsgMgr::setSink(receive);
  const std::string text(1'000'000, 'x');
  ComMsgMgr::sendMsg::eval(1, "sdk", 0, "<%s>", text.c_str());
  ASSERT_EQ(received.size(), 1U);
  EXPECT_EQ(received[0].text.size(), text.size() + 2);
  EXPECT_TRUE(received[0].text == "<" + text + ">");
}

TEST_F(ComMsgMgrTest, PassesAnEmptyText) {
  ComMsgMgr::setSink(receive);
  ComMsgMgr::sendMsg::eval(1, "sdk", 0, "%s", "");
  EXPECT_THAT(received, ElementsAre(Message{1, "sdk", 0, ""}));
}

TEST_F(ComMsgMgrTest, TakesPercentSignsOfArgumentsAsTheyAre) {
  ComMsgMgr::setSink(receive);
  ComMsgMgr::sendMsg::eval(1, "sdk", 0, "%s", "%s%n%d");
  EXPECT_THAT(received, ElementsAre(Message{1, "sdk", 0, "%s%n%d"}));
}

}  // namespace
