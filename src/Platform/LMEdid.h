// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// What a monitor says about itself in the base block of its EDID (VESA E-EDID 1.4, section 3).
struct LMEdid {
    quint32 vendorNumber = 0; ///< The three letters of the PnP identifier, packed, 16 bits.
    quint32 modelNumber = 0;  ///< The vendor's product code, 16 bits.
    quint32 serialNumber = 0; ///< 0 when the monitor gives none.
    QString productName;      ///< Descriptor 0xFC; empty when there is none.

    bool operator==(const LMEdid&) const = default;
};

/// Reads as much as the blob holds. Any bytes will do: without the EDID header everything stays
/// empty, and a truncated blob gives the fields that are complete. A wrong checksum is ignored,
/// for adapters and switches that patch the block break it, and the answer only names a monitor.
LMEdid LMEdidFromData(const QByteArray& blob);
