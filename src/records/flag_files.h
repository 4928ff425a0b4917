// Flag files: the presence of such a file means something to every program on the share or at the
// station.
#pragma once

#include "records/app.h"

#include <string>

namespace records {

/// The manager's list is open, and stations take no tenders.
inline std::string batchMarker(const ProcessValues &values)
{
    return values.Remotedir + "ServerISBatching.dat";
}

/// A server is entering tips at a station. Quoted values: time, number, name, station.
inline std::string stationMarker(const ProcessValues &values)
{
    return values.Remotedir + "StationTips.dat";
}

/// Payments go by the command line (`X1009`).
inline std::string commandLineFlag(const ProcessValues &values)
{
    return values.Maindir + "X1009Version.dat";
}

/// The guest gets no receipt.
inline std::string noReceiptFlag(const ProcessValues &values)
{
    return values.Maindir + "CCnoPrint.dat";
}

} // namespace records
