#pragma once

// The fields of the records in core/records/wealth.h, for the save file.

#include "core/record_fields.h"
#include "core/records/wealth.h"

namespace tb {

RECORD_FIELDS(WeeklyLineItem, category, title, amount, year, isExpense, typeOfExpense, energyBoost);

RECORD_FIELDS(Property, propertyTitle, propertyId, propertyLocation, pricePaid, realEstateIndex, bedrooms,
              bathrooms, sqft, acres, propertyTax, weeklyRent, rentEarned, rentalWeeksRemaining, propertyType,
              imageName, transactionFee, isPrimary, upgradesCost, upgrades, desirability, energyBonus);

RECORD_FIELDS(Transportation, title, id, pricePaid, economyIndex, transportationType, weeklyCost, imageName,
              yearPurchased, isPrimary, energyBonus);

RECORD_FIELDS(MyCard, cert, title, type, number, year, imageString, isHolo, isRare, isEnglish, isFirst, grade,
              cost, valueAtPull, cardIndex, odds);

RECORD_FIELDS(CardTransactions, cert, name, weekNumberForTracking, yearNumber, weekNumber, type, cost, resale,
              rarity, cardIndex, imageString, salePrice);

}  // namespace tb
