#pragma once

class TframeListView;

// The columns of the consignment lists of a vehicle, on a list frame.
namespace ConsignmentColumns {

// withCity: the selection's extra "Miasto (city)" column.
void add(TframeListView &frame, bool withCity);

} // namespace ConsignmentColumns
