#pragma once

// The fields of the records in core/records/wealth.h, for the save file.

#include "core/record_fields.h"
#include "core/records/wealth.h"

namespace tb {

RECORD_FIELDS(WeeklyLineItem, category, title, amount, year, isExpense, typeOfExpense, energyBoost);

RECORD_RANGES(WeeklyLineItem, {"energyBoost", between(-1'000'000, 1'000'000)});

RECORD_FIELDS(Property, propertyTitle, propertyId, propertyLocation, pricePaid, realEstateIndex, bedrooms,
              bathrooms, sqft, acres, propertyTax, weeklyRent, rentEarned, rentalWeeksRemaining, propertyType,
              imageName, transactionFee, isPrimary, upgradesCost, upgrades, desirability, energyBonus);

RECORD_RANGES(Property, {"realEstateIndex", between(0.5, 1.5)}, {"desirability", between(0, 1)},
              {"transactionFee", between(0, 1)}, {"rentalWeeksRemaining", between(0, 10'000)},
              {"energyBonus", between(-1'000'000, 1'000'000)});

RECORD_FIELDS(Transportation, title, id, pricePaid, economyIndex, transportationType, weeklyCost, imageName,
              yearPurchased, isPrimary, energyBonus);

RECORD_RANGES(Transportation, {"economyIndex", between(0.5, 1.5)}, {"yearPurchased", between(0, 100'000)},
              {"energyBonus", between(-1'000'000, 1'000'000)});

RECORD_FIELDS(MyCard, cert, title, type, number, year, imageString, isHolo, isRare, isEnglish, isFirst, grade,
              cost, valueAtPull, cardIndex, odds);

RECORD_RANGES(MyCard, {"cardIndex", between(0.3, 1.5)});

RECORD_FIELDS(CardTransactions, cert, name, weekNumberForTracking, yearNumber, weekNumber, type, cost, resale,
              rarity, cardIndex, imageString, salePrice);

}  // namespace tb
