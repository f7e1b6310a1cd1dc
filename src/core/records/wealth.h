#pragma once

// Weekly items, and purchases: homes, vehicles, cards.

#include <cstdint>
#include <string>
#include <vector>

namespace tb {

// A recurring weekly item.
struct WeeklyLineItem {
  static constexpr std::int64_t lifestyleCategory = 878;
  static constexpr std::int64_t basicNeedsType = -1;

  std::int64_t category =
      0;  // 0 basic needs, 1 guild dues, 3 property, lifestyleCategory for a weekly option
  std::string title;
  double amount = 0;               // dollars per week, positive
  std::int64_t year = 0;           // yearNumber of its start
  bool isExpense = true;           // false: income
  std::int64_t typeOfExpense = 0;  // basicNeedsType, 1 for guild dues, the id of a weekly option
  std::int64_t energyBoost = 0;    // added to totalEnergyMax while the item exists
  bool operator==(const WeeklyLineItem&) const = default;
};

// A tile of the weekly summary. In memory only.
struct Analytics {
  std::int64_t isCurrency = 0;  // 1 shows moneyEarned, 0 shows unitsSold
  std::string title;
  std::int64_t unitsSold = 0;
  double moneyEarned = 0;
  std::string subtitle;
  bool operator==(const Analytics&) const = default;
};

// A home or land that the player owns. Its value is pricePaid · (current market index - realEstateIndex + 1).
struct Property {
  std::string propertyTitle;
  std::int64_t propertyId = 0;
  std::string propertyLocation;
  double pricePaid = 0;        // dollars, including upgrades
  double realEstateIndex = 1;  // the market index at purchase
  std::int64_t bedrooms = 0;
  std::int64_t bathrooms = 0;
  std::int64_t sqft = 0;
  double acres = 0;
  std::int64_t propertyTax = 0;  // dollars a week
  double weeklyRent = 0;
  double rentEarned = 0;
  std::int64_t rentalWeeksRemaining = 0;
  std::int64_t propertyType = 0;
  std::string imageName;
  double transactionFee = 0;           // fraction of the sale price
  std::int64_t isPrimary = 0;          // the residence: gives energy and earns no rent
  std::int64_t upgradesCost = 0;       // dollars
  std::vector<std::int64_t> upgrades;  // ids
  double desirability = 0;             // 0 to 1
  std::int64_t energyBonus = 0;        // added to totalEnergyMax while it is the residence
  bool operator==(const Property&) const = default;
};

// A vehicle, boat or plane that the player owns.
struct Transportation {
  std::string title;
  std::int64_t id = 0;
  double pricePaid = 0;
  double economyIndex = 1;  // realEstateIndex at purchase
  std::int64_t transportationType = 0;
  double weeklyCost = 0;  // insurance
  std::string imageName;
  std::int64_t yearPurchased = 0;
  std::int64_t isPrimary = 0;
  std::int64_t energyBonus = 0;  // added to totalEnergyMax while it is the primary vehicle
  bool operator==(const Transportation&) const = default;
};

// A collectible card in the vault. Its value is valueAtPull · (current card index / cardIndex).
struct MyCard {
  std::int64_t cert = 0;  // random certificate number
  std::string title;
  std::int64_t type = 0;
  std::int64_t number = 0;
  std::int64_t year = 0;  // of printing
  std::string imageString;
  std::int64_t isHolo = 0;
  std::int64_t isRare = 0;
  std::int64_t isEnglish = 0;
  std::int64_t isFirst = 0;
  std::int64_t grade = 0;
  double cost = 0;  // of the pack, dollars
  double valueAtPull = 0;
  double cardIndex = 1;  // the market index when it was pulled
  double odds = 0;       // the chance shown, percent
  bool operator==(const MyCard&) const = default;
};

struct CardTransactions {
  std::int64_t cert = 0;
  std::string name;
  std::int64_t weekNumberForTracking = 0;
  std::int64_t yearNumber = 0;
  std::int64_t weekNumber = 0;  // week of the year
  std::int64_t type = 0;
  double cost = 0;
  double resale = 0;
  double rarity = 0;
  double cardIndex = 1;
  std::string imageString;
  double salePrice = 0;
  bool operator==(const CardTransactions&) const = default;
};

}  // namespace tb
