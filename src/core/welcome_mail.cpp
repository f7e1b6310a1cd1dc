#include "core/welcome_mail.h"

#include <array>
#include <string>

namespace tb {

namespace {

struct Welcome {
  Int id;
  const char* title;
  const char* message;
};

constexpr Int tipId = 0;

constexpr std::array<Welcome, 4> welcomes = {{
    {.id = Email::giftId,
     .title = "A Free Gift",
     .message = "Thanks for playing and trying out the game! Tap this email to get a free cash boost!"},
    {.id = Email::giftId,
     .title = "Showreel",
     .message = "Your showreel makes all the difference in landing auditions. You can access it by tapping "
                "the \"B\" icon on the previous page (top right corner)!"},
    {.id = tipId,
     .title = "Acting Classes",
     .message = "Experience is gained through auditions and bookings but you can fast track your experience "
                "by taking acting classes at Julien."},
    {.id = tipId,
     .title = "Audition",
     .message = "The Backstage provides a list of casting calls that you can submit your showreel for... "
                "Train your skills, while submitting your showreel to receive auditions."},
}};

}  // namespace

void sendWelcomeMail(WorldState& world) {
  world.saveAllEmailList.clear();
  for (const Welcome& welcome : welcomes) {
    world.saveAllEmailList.push_back({.id = welcome.id,
                                      .typeOfDeal = deal::help,
                                      .title = welcome.title,
                                      .message = welcome.message,
                                      .connectingId = 0,
                                      .weekNumber = world.weekNumber,
                                      .yearNumber = world.yearNumber,
                                      .weekNumberForTracking = world.weekNumberForTracking});
  }
}

}  // namespace tb
