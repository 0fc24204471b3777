// Random evenings and the stories, played on real windows, which must show after each step what the model holds. To
// play one seed again, or longer:
//   ORVANBEG_EVENING_SEED=3 ORVANBEG_EVENING_EVENTS=50000 qt_tests --gtest_filter='*WidgetEvening*'
#include "../pictures/story.h"
#include "../random_evening/random_evening.h"
#include "widget_hands.h"

namespace tests {
namespace {

#ifdef NDEBUG
constexpr unsigned kEvents = 20'000;
#else  // the debug build carries the sanitizers
constexpr unsigned kEvents = 4000;
#endif
constexpr unsigned kEnoughForAll = 20'000;  // events in which every dialog has been open

class WidgetEvening : public RandomEvening, WidgetHands {
 protected:
  WidgetEvening() : WidgetHands(window) {}
};

TEST_P(WidgetEvening, ShowsWhatTheModelHolds) {
  const unsigned events = FromEnvironment("ORVANBEG_EVENING_EVENTS", kEvents);
  Play(events);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_LT(QApplication::allWidgets().size(), 500) << "widgets were made and forgotten";
  if (HasFatalFailure() || events < kEnoughForAll) return;
  EXPECT_THAT(seen, testing::IsSupersetOf({"F2", "F3", "F4", "F5", "F6", "F7", "F8", "F9", "F10", "F20"}));
}

INSTANTIATE_TEST_SUITE_P(Seed, WidgetEvening, testing::Values(FromEnvironment("ORVANBEG_EVENING_SEED", 1)),
                         testing::PrintToStringParamName());

class WidgetStories : public Stories, WidgetHands {
 protected:
  WidgetStories() : WidgetHands(window) {}
  void SetUp() override {
    Stories::SetUp();
    Settle();
    window.F8.SetFocus(window.F8.comSelectLang);  // the last one of the first run
  }
};

TEST_P(WidgetStories, GoAsInTheModel) { Play(); }

INSTANTIATE_TEST_SUITE_P(All, WidgetStories, testing::ValuesIn(StoriesIn("stories")), TitleOf);

}  // namespace
}  // namespace tests
