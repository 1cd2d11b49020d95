#include "domain/client_rules.h"
#include "domain/order_entry.h"
#include "messaging/order_requests.h"
#include "messaging/prompt_port.h"
#include "plugin/control_block.h"
#include "plugin/order_context.h"

namespace {

SubmitContext submitContextOf(COFSControlBlock& block, const sOFSCol& issue) {
  const pu_is_valid_account_fn isValid = block.services.isValidAccount;
  // Without the host's account check every account passes.
  return SubmitContext{
      issue, block.platform.now(), block.userId(),
      [isValid](const std::string& account) { return !isValid || isValid(account) != 0; }};
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
  if (refused(checkNewBid(fields_, submitContextOf(block_, *issue_), bid))) return;
  const OrderContext context = orderContextOf(block_);
  bid.reference = std::to_string(context.placedOrders->size() + 1);
  const bool walkin = fields_.clientType.selected == kWalkinClient;
  const int32_t result = walkin ? placeWalkinOrder(context, bid) : placeOfsOrder(context, bid);
  if (result == 0) resetAfterSending();
}

void COrderEntryDlg::submitModification() {
  Modification change{order_, {}, {}, false};
  if (refused(checkModification(fields_, submitContextOf(block_, *issue_), change))) return;
  const OrderContext context = orderContextOf(block_);
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
