#include "plugin/control_block.h"

#include "issues/watch_view.h"
#include "messaging/query_requests.h"
#include "messaging/response_dispatcher.h"
#include "plugin/plugin_identity.h"

COFSControlBlock::COFSControlBlock(const SymbolLookup& module, PluginPlatform& host)
    : hostModule(&module),
      services(bindHostServices(module)),
      layer(connectvornOps(), host.prompt()),
      platform(host) {
  peerData = services.getPeerData;
}

COFSControlBlock::~COFSControlBlock() {
  int err = 0;
  if (handle) otp_dtor_primecb(&handle, &err);
  if (scratch) otp_close_scratch(&scratch, &err, 0);
}

void COFSControlBlock::OnLiveUpdate(otp_msg_t msg) {
  dispatchLiveUpdate(*this, msg);
}

void COFSControlBlock::OnResponse(otp_msg_t msg) {
  dispatchResponse(*this, msg);
}

bool COFSControlBlock::hasAddIssueRight() {
  return hasRight(kAddIssueRight);
}

void COFSControlBlock::issueAdded(sOFSCol& issue) {
  if (watchView) watchView->addIssue(&issue);
}

void COFSControlBlock::assetFirstShown(const std::string& exchange, const std::string& symbol) {
  if (watchView) watchView->assetShown(exchange, symbol);
}

void COFSControlBlock::refreshWatchView() {
  if (watchView) watchView->refresh();
}

void COFSControlBlock::historyRowAdded(std::unique_ptr<sOFSOrderInfo> row) {
  if (onHistoryRow) onHistoryRow(std::move(row));
}

void COFSControlBlock::historyReplyEnded() {
  if (onHistoryEnd) onHistoryEnd();
}

void COFSControlBlock::marketDepthChanged() {
  if (onMarketDepthChanged) onMarketDepthChanged();
}

void COFSControlBlock::handInstrumentToHost(const std::string& exchange,
                                            const std::string& symbol) {
  // Later updates of the instrument keep arriving through its price-feed subscription.
  ensurePriceFeed(exchange, symbol);
}

void COFSControlBlock::ensurePriceFeed(const std::string& exchange, const std::string& symbol) {
  if (feedDepthOf(exchange, symbol)) return;
  feedDepths_.push_back({exchange, symbol, "NA", {}, 0});
  subscribeMarketPrice(layer, exchange, symbol);
}

const MarketDepthState* COFSControlBlock::feedDepthOf(const std::string& exchange,
                                                      const std::string& symbol) const {
  for (const MarketDepthState& kept : feedDepths_)
    if (kept.symbol == symbol && kept.exchange == exchange) return &kept;
  return nullptr;
}

bool COFSControlBlock::hasRight(const std::string& rightName) const {
  return services.isActionRightEnabled && services.isActionRightEnabled(rightName) != 0;
}

void COFSControlBlock::log(const std::string& line) const {
  if (services.addToTabbedLog) services.addToTabbedLog(line);
}

void COFSControlBlock::hostMessageBox(const std::string& text) const {
  if (services.showMessageBox) services.showMessageBox(text);
}

// Issues are few: a walk over the map is cheaper than keeping a second index in step.
std::vector<const sOFSCol*> COFSControlBlock::knownIssues() const {
  std::vector<const sOFSCol*> issues;
  issues.reserve(recordMaps.issueSymbols.size());
  for (const std::string& symbol : recordMaps.issueSymbols)
    if (const sOFSCol* issue = findRecord(recordMaps.issues, symbol)) issues.push_back(issue);
  return issues;
}

const sOFSCol* COFSControlBlock::issueOfId(const std::string& issueId) const {
  for (const auto& [symbol, issue] : recordMaps.issues) {
    if (issue && issue->issueId == issueId) return issue.get();
  }
  return nullptr;
}

OrderContext COFSControlBlock::orderContext() {
  return OrderContext{layer, userId(), identities[1], services.getUuid, &placedOrderRecords()};
}

bool COFSControlBlock::isValidAccount(const std::string& account) const {
  return !services.isValidAccount || services.isValidAccount(account) != 0;
}

std::vector<std::string> COFSControlBlock::userAccounts() const {
  if (!services.loadClientIdCombo) return mappedAccounts;
  StringList accounts;
  services.loadClientIdCombo(accounts);
  return accounts;
}

std::vector<std::string> COFSControlBlock::hostClientTypes() const {
  StringList types;
  if (services.loadProCliCombo) services.loadProCliCombo(types);
  return types;
}

void COFSControlBlock::clientTypeChosen(const std::string& type) {
  if (services.onSelChangeProCli) services.onSelChangeProCli(type);
}

std::string COFSControlBlock::participantCodeOf(const std::string& account) const {
  std::string pCode;
  if (services.getPCode && !services.getPCode(account, pCode)) pCode.clear();
  return pCode;
}

const std::vector<std::string>* COFSControlBlock::clientCategoriesOf(
    const std::string& category) const {
  const auto it = recordMaps.categories.find(category);
  return it == recordMaps.categories.end() ? nullptr : &it->second;
}

IIrbeRxControl* COFSControlBlock::obtainRxControl(int kind) {
  return services.getRxControl ? services.getRxControl(kind, this) : nullptr;
}

void COFSControlBlock::releaseRxControl(IIrbeRxControl* control) {
  if (services.destroyRxControl) services.destroyRxControl(control);
}

bool COFSControlBlock::registerHotkey(void* window, const HotkeyRow& row) {
  if (!services.registerHotkey) return false;
  services.registerHotkey(window, row.caption, row.number, row.name, row.key, kHotkeyOwner);
  return true;
}

namespace {
COFSControlBlock* theBlock = nullptr;
}

COFSControlBlock* controlBlock() {
  return theBlock;
}
void setControlBlock(COFSControlBlock* block) {
  theBlock = block;
}
