#include "domain/client_rules.h"
#include "domain/prompt_port.h"
#include "messaging/order_requests.h"
#include "orderentry/order_entry.h"

namespace {

SubmitContext submitContextOf(const OrderEntryPort& port, const sOFSCol& issue) {
  return SubmitContext{issue, port.now(), port.userId(), [&port](const std::string& account) {
                         return port.isValidAccount(account);
                       }};
}

}  // namespace

void COrderEntryDlg::submit() {
  if (!issue_) return;
  if (modifying_) {
    submitModification();
  } else {
    submitNewBid();
  }
}

bool COrderEntryDlg::refused(const Verdict& verdict) {
  if (!verdict) return false;
  if (!verdict->focus.empty()) prompt_.focus(verdict->focus);
  prompt_.message(verdict->message);
  return true;
}

void COrderEntryDlg::submitNewBid() {
  sOFSPlaceOrder bid;
  if (refused(checkNewBid(fields_, submitContextOf(port_, *issue_), bid))) return;
  const OrderContext context = port_.orderContext();
  bid.reference = std::to_string(context.placedOrders->size() + 1);
  const bool walkin = fields_.clientType.selected == kWalkinClient;
  const int32_t result = walkin ? placeWalkinOrder(context, bid) : placeOfsOrder(context, bid);
  if (result == 0) resetAfterSending();
}

void COrderEntryDlg::submitModification() {
  Modification change{order_, {}, {}, false};
  if (refused(checkModification(fields_, submitContextOf(port_, *issue_), change))) return;
  const OrderContext context = port_.orderContext();
  bool sent = false;
  if (change.order.clientId.empty()) {
    modifyWalkinOrder(context, change.order, change.price, change.quantity,
                      fields_.walkinParticipantCode.text, &sent);
  } else {
    modifyOfsOrder(context, change.order, change.price, change.quantity, &sent);
  }
  if (!sent) return;
  setMode(false);
  resetAfterSending();
}

void COrderEntryDlg::resetAfterSending() {
  fields_.price = fields_.cutOff ? EntryText{"MKT", false, true} : EntryText{};
  fields_.quantity.text.clear();
  clientTypeChanged();
  fields_.clientType.enabled = true;
  fields_.participantCode.selected.clear();
  fields_.clientCategory.selected.clear();
  notifyAll();
}
