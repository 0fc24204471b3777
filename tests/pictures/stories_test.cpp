// What the windows show and what a user's steps change in them, in the model of the forms: all windows and the printed
// page in telling states, and the stories.
#include "story.h"

namespace tests {
namespace {

TEST_P(Stories, GoAsTheyAreTold) { Play(); }

INSTANTIATE_TEST_SUITE_P(Pictures, Stories, testing::ValuesIn(StoriesIn("")), TitleOf);
INSTANTIATE_TEST_SUITE_P(All, Stories, testing::ValuesIn(StoriesIn("stories")), TitleOf);

}  // namespace
}  // namespace tests
