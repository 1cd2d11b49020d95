// Who may bid how: client type, participant code (PCode), series, order type, cut-off, margin
// and BSE client category. Order entry, the basket and the bulk upload all ask here, with the
// texts they hold. An exchange is named by its screen name; "BSEIPO" is BSE, any other NSE.
#pragma once

#include <string>
#include <string_view>
#include <vector>

inline constexpr char kFullMargin[] = "100% Margin";
inline constexpr char kNoMargin[] = "No Margin";
inline constexpr char kRetailOrder[] = "Retail";
inline constexpr char kNonInstitutionalOrder[] = "Non-institutional";
inline constexpr char kInstitutionalOrder[] = "Institutional";
inline constexpr char kProClient[] = "PRO";
inline constexpr char kWalkinClient[] = "Walkin";

// The margin on the order record: "No Margin" gives "NO", every other text "YES".
std::string marginFlag(const std::string& margin);
// The client type on the order record: "PRO" gives "F", every other text "C".
std::string clientTypeCode(const std::string& clientType);

// A bid's declared BSE client category with what it must agree with.
struct CategoryBid {
  std::string exchange;
  std::string series;
  std::string orderType;
  bool cutOff = false;
  std::string category;
};
// An NSE bid declares no category; a BSE bid the one its series, order type and cut-off require.
bool checkClientCategory(const CategoryBid& bid, std::string& message);

// The entries of the issue's category list that the BSE screen offers, in the list's order; the
// first is selected. (The NSE screen offers none.)
std::vector<std::string> bseCategoryChoices(const std::vector<std::string>& issueCategories,
                                            const std::string& orderType, const std::string& series,
                                            bool cutOff);

struct MarginChoices {
  std::vector<std::string> items;
  std::string selected;
};
// NSE, once an account is chosen. (For series "IS" the screen also disables the cut-off box.)
MarginChoices nseMarginChoices(const std::string& series, const std::string& pCode);
// BSE, once the order type is set.
MarginChoices bseMarginChoices(const std::string& orderType, const std::string& pCode);

enum class AccountVerdict {
  Accept,
  Refuse,                // empty the client code and stop
  ResetToInstitutional,  // select "Institutional" as order type and go on
};
// On choosing an account with participant code `pCode`; `message` is set unless Accept, and is
// shown in the plug-in's own message box.
AccountVerdict checkAccountPCode(const std::string& exchange, const std::string& series,
                                 const std::string& orderType, const std::string& pCode,
                                 std::string& message);

// At submission, each on its own so that every caller keeps its own order of steps.
bool checkCategorySet(const std::string& exchange, const std::string& category,
                      std::string& message);
bool checkProMargin(const std::string& clientType, const std::string& margin, std::string& message);
// A walk-in bid: a client code is needed, and both codes must be letters and digits only.
bool checkWalkinCodes(const std::string& clientCode, const std::string& pCode,
                      std::string& message);
// An ordinary bid (neither "PRO" nor walk-in): an account the host knows as a client.
bool checkOrdinaryAccount(const std::string& clientCode, bool hostKnowsClient,
                          std::string& message);
// A line of the terminal's own bid file: order types are those of the BSE screen plus
// "Employee", and the series is the one its order type stands for (see vtSeries).
struct VtClientBid {
  std::string_view exchange;
  std::string_view clientId;
  std::string_view pCode;
  std::string_view margin;  // "100% Margin" or "No Margin"
  std::string_view orderType;
  bool cutOff = false;
  std::string_view category;
};
// The client rules in the order the bid file reports them, the category table among them.
bool checkVtClientRules(const VtClientBid& bid, std::string& message);
// "Retail" and "Employee" order types stand for the retail and employee series, the others for
// the non-retail one: "RS", "ES", "IS" on NSE, "Retail", "Employee", "NonRetail" on BSE.
std::string vtSeries(std::string_view exchange, std::string_view orderType);

bool checkPCodeOrderType(const std::string& pCode, const std::string& orderType,
                         std::string& message);
