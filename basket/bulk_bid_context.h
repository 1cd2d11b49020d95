// What the bid file checks look up: issues, accounts, the orders a modify/cancel file names and
// the TM code. Every lookup may be left out; the checks that need it are then skipped, so that a
// file can be checked with no terminal behind it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "domain/records.h"

struct BidContext {
  // The issue of a NEAT or NOW line, by the line's symbol and series (issue symbol "SYM-SERIES").
  std::function<const sOFSCol*(std::string_view symbol, std::string_view series)> issueBySymbol;
  // The issue of a VT line, by its issue id.
  std::function<const sOFSCol*(std::string_view issueId)> issueById;
  // An account's participant code (empty when it has none); null for an unknown account.
  std::function<const std::string*(std::string_view account)> participantCodeOf;
  // Whether some account of the user carries this participant code.
  std::function<bool(std::string_view pCode)> knowsParticipantCode;
  // The user's order with this NOW order number; null when there is none.
  std::function<const sOFSOrderInfo*(std::string_view orderNumber)> orderOf;
  // The trading member's own code; empty when not known.
  std::string tmCode;
  // The issue id the VT list is for (the upload screen's issue); empty: any issue.
  std::string listIssueId;
};

// Lookups over plain lists, for the command-line checker, tests and benchmarks. The context it
// binds refers to this object, which must outlive it.
class BidLookups {
 public:
  void addIssue(const sOFSCol& issue);
  void addAccount(const std::string& account, const std::string& pCode);
  void addOrder(const sOFSOrderInfo& order);
  // A context whose lookups are those that were given something.
  BidContext context(std::string tmCode = {}) const;

 private:
  struct TextHash {
    using is_transparent = void;
    size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
  };
  template <class T>
  using TextMap = std::unordered_map<std::string, T, TextHash, std::equal_to<>>;

  std::vector<std::unique_ptr<sOFSCol>> issues_;
  TextMap<const sOFSCol*> bySymbol_;
  TextMap<const sOFSCol*> byId_;
  TextMap<std::string> accounts_;
  TextMap<int> pCodes_;
  TextMap<sOFSOrderInfo> orders_;
};
