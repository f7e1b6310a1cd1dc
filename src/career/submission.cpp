#include "career/submission.h"

#include <algorithm>

#include "banks/audition_banks.h"
#include "banks/draw.h"
#include "career/project_start.h"
#include "core/find.h"
#include "core/house_notices.h"
#include "core/log.h"

namespace tb {

namespace {

// Members can submit for union roles only, non-members for non-union roles only.
Refusal unionRefusal(const WorldState& world, const CastingListing& listing) {
  if (listing.isUnion == world.isSAG) return {};
  if (listing.isUnion == 0) {
    return Notice{
        .title = "🎞 Actor's Guild 🎞",
        .message = "\nAs a member of the Actor's Guild, you are not permitted to work non-union roles.",
        .brief = "Non-union: closed to members"};
  }
  return Notice{.title = "🎞 Actor's Guild 🎞",
                .message =
                    "\nBecome a member of the Actor's Guild to gain access to better pay, residuals, "
                    "royalties and feature films. It takes in performers with two booked principal roles.",
                .brief = "Union members only"};
}

Audition submittedRecord(Game& game, const CastingListing& listing) {
  Audition project = projectFrom(listing);
  startProject(game, project);
  project.source = "The Backstage";
  return project;
}

}  // namespace

Refusal submissionRefusal(const WorldState& world, const CastingListing& listing) {
  if (find(world.saveAllAuditionList, &Audition::filmId, listing.filmId)) {
    return Notice{.title = "🎭 SUBMITTED! 🎭",
                  .message = "\nYou already submitted for this role. Choose another one.",
                  .brief = "Submitted"};
  }
  if (Refusal refusal = unionRefusal(world, listing)) return refusal;
  if (world.totalEnergyAvailable < submissionEnergy) {
    return Notice{.title = "⚡️ Not Enough Energy! ⚡️",
                  .message = "\nYou don't have the energy to submit for this role.",
                  .brief = tooLittleEnergy};
  }
  return {};
}

Refusal submitToCastingListing(Game& game, const CastingListing& listing) {
  WorldState& world = game.world;
  if (Refusal refusal = submissionRefusal(world, listing)) return refusal;

  world.totalEnergyAvailable -= submissionEnergy;
  world.filmId =
      std::max(world.filmId, listing.filmId);  // listings can be used in any order; never decreases
  world.saveAllAuditionList.push_back(submittedRecord(game, listing));
  logActivity(world, fill(drawFreshRow(game, bank::submission), {{"title", listing.movie->title}}));
  return {};
}

}  // namespace tb
