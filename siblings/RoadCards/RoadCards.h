#pragma once

#include "TKarty_drObj.h"
#include "TableRecordEditing.h"
#include "TableRegister.h"

class TPojazdyObj;
class TZlecenia_przychObj;

// Road cards: one trip of a vehicle with its driver and trailer, the meter
// and fuel readings at the start and at the end, the kilometres driven
// laden and empty. A card made for an incoming order starts from what the
// order says (IDZLECENIA, NRZLECENIA) and the order points back at it
// (ZLECENIA_PRZYCH.IDKARTYDR).
namespace RoadCards {

TableRegister<TKarty_drObj>::Definition listing();
// orderKey: the incoming order the card is made for or opened from; a new
// card starts from the order, and saving the card points the order at it
// in the same transaction.
TableRecordEditing<TKarty_drObj>::Definition editing(int orderKey = 0);

// Kilometres by the meter; 0 while the card has no end reading.
int driven(const TKarty_drObj &card);
// Fuel used: at the start plus what was bought less what is left; 0 while
// the card has no end reading.
double fuelUsed(const TKarty_drObj &card);

// Readings that contradict each other. A database failure throws DbError.
Problem check(const TKarty_drObj &card, Connection &connection);

// The number a new card of the year gets: one past the year's highest.
int nextNumber(Connection &connection, int year);

// What a vehicle brings to a card: its default driver and trailer where the
// card has none, its meter and fuel where the card has no start reading.
void takeOverVehicle(TKarty_drObj &card, const TPojazdyObj &vehicle);
// A new card for an order: its driver, vehicle (by key, else by
// registration), trailer, number, date, laden kilometres and pallets.
void fillFromOrder(TKarty_drObj &card, const TZlecenia_przychObj &order, Connection &connection);

} // namespace RoadCards
