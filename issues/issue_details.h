// The issue dialog: an administrator adds a new OFS issue or modifies a listed one. It keeps
// the fields as typed, checks them in order on Add or Modify, and sends the issue record. It
// never draws: a view shows the fields and calls the setters.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "domain/records.h"
#include "domain/screen_fields.h"
#include "issues/issues_port.h"

enum class IssueText {
  SymbolName,
  Isin,
  FaceValue,
  TickSize,
  FloorPrice,
  RmsPrice,
  CeilingPrice,
  IndicativePrice,
  StartDate,  // "DD/MM/YYYY", from a date picker
  CloseDate,
  FinalModificationDate,
  ClosingTime,  // "HH:MM:SS"; "00:00:00" is no time
  MinQuantity,
  MultipleQuantity,
  OfsSize,
  RetailLimit,
  NonRetailLimit,
  Discount,
  IssueNotes,
  ProspectusUrl,
  CompanyName,
  UnderlyingToken,
};
inline constexpr size_t kIssueTextCount = 22;

enum class IssueList { Exchange, Series, DiscVp, SymbolDisplay, OrderPlacement };
inline constexpr size_t kIssueListCount = 5;

// What a text field lets through while typing.
enum class IssueTyping { Any, Digits, Price, Date, Time, Token };

struct IssueTextInfo {
  const char* label;
  IssueTyping typing;
};
// Labels and typing rules, in the order of IssueText.
extern const std::array<IssueTextInfo, kIssueTextCount> kIssueTexts;
extern const std::array<const char*, kIssueListCount> kIssueListLabels;

struct IssueDetailsFields {
  std::array<EntryText, kIssueTextCount> texts;
  std::array<EntryChoice, kIssueListCount> lists;
  bool cutOff = false;
  bool discountOffered = false;  // the discount option: a discount is given with its kind

  EntryText& operator[](IssueText t) { return texts[static_cast<size_t>(t)]; }
  const EntryText& operator[](IssueText t) const { return texts[static_cast<size_t>(t)]; }
  EntryChoice& operator[](IssueList l) { return lists[static_cast<size_t>(l)]; }
  const EntryChoice& operator[](IssueList l) const { return lists[static_cast<size_t>(l)]; }
};

// The first refusal of a check sequence: its message and the label of the field it names.
struct IssueRefusal {
  std::string message;
  std::string field;
  explicit operator bool() const { return !message.empty(); }
};

// The checks of Add and Modify, in order.
IssueRefusal checkIssueDetails(const IssueDetailsFields& f);
// A prospectus URL an investor can open: http:// or https://, a host with a dot, no blanks.
bool isValidProspectusUrl(const std::string& url);

class COFSIssueDetails {
 public:
  static constexpr char kAddTitle[] = "VT: Add OFS Issue";
  static constexpr char kModifyTitle[] = "Modify OFS issue";
  static constexpr char kAddButton[] = "&Add";
  static constexpr char kModifyButton[] = "Modify";
  static constexpr char kCutOffLabel[] = "Cut Off";
  static constexpr char kDiscountOptionLabel[] = "Discount Offered";

  explicit COFSIssueDetails(IssuesPort& port) : port_(port) {}

  void setListener(std::function<void()> changed) { changed_ = std::move(changed); }

  // A new issue: empty fields, the three dates today, both yes/no choices "Yes".
  void openToAdd();
  // The fields of `issue` (copied), to be sent back changed.
  void openToModify(const sOFSCol& issue);

  bool adding() const { return adding_; }
  const char* title() const { return adding_ ? kAddTitle : kModifyTitle; }
  const char* buttonText() const { return adding_ ? kAddButton : kModifyButton; }
  const IssueDetailsFields& fields() const { return fields_; }

  // Typing into a field: false (field unchanged) for text its typing rule refuses or while it
  // is disabled. A refused character of the underlying token is also answered in a message.
  bool setText(IssueText field, const std::string& text);
  // Choosing an entry; the series also switches the limit fields and their defaults.
  bool select(IssueList list, const std::string& entry);
  void setCutOff(bool ticked);
  void setDiscountOffered(bool ticked);

  // Add or Modify: the first refusal is shown and its field focused; otherwise the issue is
  // sent and the dialog waits for the answer.
  void submit();
  // The answer came: empties the fields. True when the dialog was adding.
  bool end();

  // The record the fields make, as submit sends it.
  sOFSCol record() const;

 private:
  void clear();
  void switchSeries(const std::string& word, bool withDefaults);
  bool acceptsTyping(IssueText field, const std::string& text);
  void changed() const {
    if (changed_) changed_();
  }

  IssuesPort& port_;
  IssueDetailsFields fields_;
  sOFSCol modified_;  // the issue being modified: what the dialog does not show travels on
  bool adding_ = true;
  std::function<void()> changed_;
};
