// The order-entry screen's fields as the screen logic holds them and the view shows them.
#pragma once

#include <string>

#include "domain/screen_fields.h"

// The labels by which the view, the focus and scripts name the fields.
namespace entry_label {
inline constexpr char kOfsId[] = "OFS Id";
inline constexpr char kQuantity[] = "Quantity";
inline constexpr char kPrice[] = "Price";
inline constexpr char kOrderType[] = "Order Type";
inline constexpr char kExchange[] = "Exchange";
inline constexpr char kCutOff[] = "CutOff";
inline constexpr char kProCli[] = "Pro/Cli";
inline constexpr char kClientCode[] = "Client Code";
inline constexpr char kWalkinClientCode[] = "Walkin Client Code";
inline constexpr char kWalkinParticipantCode[] = "Walkin Participant Code";
inline constexpr char kClientCategory[] = "Client Category";
inline constexpr char kMargin[] = "Margin";
inline constexpr char kParticipantCode[] = "Participant Code";
inline constexpr char kIndicativePrice[] = "Indicative Price";
}  // namespace entry_label

struct OrderEntryFields {
  EntryText ofsId{{}, false, true};  // symbol-series
  EntryText quantity;
  EntryText price;                      // rupees, or "MKT" for a cut-off bid
  EntryText exchange{{}, false, true};  // "NSEIPO" or "BSEIPO"
  EntryText clientCode;
  bool clientSearchEnabled = true;  // the "..." button beside the client code
  EntryText walkinClientCode{{}, true, false};
  EntryText walkinParticipantCode{{}, true, false};
  EntryText indicativePrice{{}, false, true};
  bool cutOff = false;
  bool cutOffEnabled = true;
  EntryChoice orderType;
  EntryChoice clientType;  // the "Pro/Cli" list
  EntryChoice clientCategory;
  EntryChoice margin;
  EntryChoice participantCode;
  // Hidden.
  std::string priceRange;   // floor "-" ceiling
  std::string cutOffFlag;   // the cut-off allowance, "Y" or "N"
  std::string closingTime;  // "HH:MM:SS", empty when the issue has none
};
