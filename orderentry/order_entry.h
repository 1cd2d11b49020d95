// The order-entry screen: one OFS bid, new or a modification of a reported order. It keeps its
// choices consistent with the client rules while the user types, checks a submission in order
// and sends it. It never draws: a view shows `fields()` and calls the setters.
#pragma once

#include <string>
#include <vector>

#include "domain/records.h"
#include "orderentry/order_entry_checks.h"
#include "orderentry/order_entry_fields.h"
#include "orderentry/order_entry_port.h"

class PromptPort;

// The ordinary client type of the "Pro/Cli" list.
inline constexpr char kCliClient[] = "CLI";

// Told when something the view shows has changed.
class OrderEntryListener {
 public:
  virtual void fieldsChanged() = 0;   // texts, enabled and visible states
  virtual void choicesChanged() = 0;  // list entries and selections
  virtual void headingChanged() = 0;  // heading and button text

 protected:
  ~OrderEntryListener() = default;
};

class COrderEntryDlg {
 public:
  static constexpr char kTitle[] = "OFS Order Entry";
  static constexpr char kNewBidHeading[] = "Place OFS Order 3.14.7";
  static constexpr char kNewBidButton[] = "Submit";
  static constexpr char kModifyHeading[] = "Modify OFS Order";
  static constexpr char kModifyButton[] = "Modify";
  // The name under which the client code field is registered with the host's client search.
  static constexpr char kClientSearchName[] = "Client_Search";

  COrderEntryDlg(OrderEntryPort& port, PromptPort& prompt);

  void setListener(OrderEntryListener* listener) { listener_ = listener; }

  // A new bid on `issue`, which must outlive the screen's use of it.
  void open(const sOFSCol& issue);
  // Modifying `order` (copied) of `issue`.
  void openForModification(const sOFSOrderInfo& order, const sOFSCol& issue);

  bool modifying() const { return modifying_; }
  const std::string& heading() const { return heading_; }
  const std::string& buttonText() const { return button_; }
  const OrderEntryFields& fields() const { return fields_; }
  const sOFSCol* issue() const { return issue_; }

  // Typing. Each refuses (false, field unchanged) text its field does not accept, and any text
  // while the field is disabled.
  bool setQuantity(const std::string& text);  // digits
  bool setPrice(const std::string& text);     // "0123456789."
  // Capitals and digits of the code alphabet (which has no Q).
  bool setWalkinClientCode(const std::string& text);
  bool setWalkinParticipantCode(const std::string& text);
  // The account typed or returned by the client search; runs the account rules.
  bool setClientCode(const std::string& text);
  bool setCutOff(bool ticked);

  // Choosing an entry of a list; false when the list is disabled or has no such entry.
  bool selectOrderType(const std::string& entry);
  bool selectClientType(const std::string& entry);
  bool selectClientCategory(const std::string& entry);
  bool selectMargin(const std::string& entry);
  bool selectParticipantCode(const std::string& entry);

  // The submit button: checks in order, shows the first refusal and focuses its field, or sends
  // and resets the screen.
  void submit();

 private:
  enum class Change { Fields, Choices, Heading };

  void loadIssue(const sOFSCol& issue);
  void showOrderClient(const sOFSOrderInfo& order);
  void setMode(bool modifying);
  void submitNewBid();
  void submitModification();
  // Shows a refusal and focuses its field; false when there was none.
  bool refused(const Verdict& verdict);
  void resetAfterSending();

  // Reactions (order_entry_reactions.cpp).
  void fillClientTypes();
  void clientTypeChanged();
  void showClientCodeFor(const std::string& clientType);
  void accountChosen();
  void rebuildChoiceLists();
  void rebuildCategories();
  void rebuildMargins();
  bool isBse() const;

  void notify(Change change);
  void notifyAll();

  OrderEntryPort& port_;
  PromptPort& prompt_;
  OrderEntryListener* listener_ = nullptr;
  OrderEntryFields fields_;
  const sOFSCol* issue_ = nullptr;
  sOFSOrderInfo order_;  // the order being modified
  bool modifying_ = false;
  std::string heading_ = kNewBidHeading;
  std::string button_ = kNewBidButton;
  std::string series_;
  std::string accountPCode_;  // the chosen account's participant code
};
