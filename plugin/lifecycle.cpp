#include "plugin/lifecycle.h"

#include "messaging/query_requests.h"
#include "plugin/client_overview.h"
#include "plugin/control_block.h"
#include "plugin/plugin_identity.h"

namespace {

std::string theActiveClient;

std::string useRightName() {
  return std::string(kRightGroup) + ": " + kRightOfs;
}

template <typename Fn>
Fn lookup(const SymbolLookup& module, const char* name) {
  return reinterpret_cast<Fn>(module.find(name));
}

void openMessaging(COFSControlBlock& block, PromptPort& prompt) {
  int err = 0;
  // A second start opens them afresh; the first ones are given back rather than lost.
  if (block.handle) otp_dtor_primecb(&block.handle, &err);
  if (block.scratch) otp_close_scratch(&block.scratch, &err, 0);
  block.scratch = nullptr;
  if (!otp_open_scratch(&block.scratch, kScratchCapacity, &err)) {
    block.scratch = nullptr;
    prompt.message("Buffer Handle open Failed");
  }
  // The files are handed over even without a directory: they then have no directory part.
  if (block.userDirectory.empty() && block.services.getUserDirectory) {
    std::string directory;
    if (block.services.getUserDirectory(directory)) block.userDirectory = directory;
  }
  block.platform.setRecoveryFiles(block.userDirectory + "\\UserSetting.ini",
                                  block.userDirectory + "\\DialogPos.ini");
  block.handle = nullptr;
  if (!otp_ctor_primecb(&block.handle, &err)) {
    block.handle = nullptr;
    prompt.message("MNM Handle Open Failed");
  }
  block.layer.setHandles(block.handle, block.scratch);
}

void openDocument(COFSControlBlock& block, PluginPlatform& platform) {
  if (!block.docTemplate) {
    block.docTemplate.reset(platform.createDocTemplate(block));
    if (block.app && block.docTemplate) block.app->AddDocTemplate(block.docTemplate.get());
  }
  if (platform.frameExists()) {
    platform.showFrame();
    return;
  }
  IVornMainWindow* main = block.app ? block.app->GetMainWnd() : nullptr;
  if (main && main->IsWindow())
    main->SendMessage(kWmCommand, reinterpret_cast<uintptr_t>(block.docTemplate.get()),
                      kOpenDocumentParam);
}

void sendStartupRequests(COFSControlBlock& block) {
  MessageLayer& layer = block.layer;
  requestIssueList(layer, "nse_ipo");
  requestIssueList(layer, "bse_ipo");
  const BroadcastIdentity identity = broadcastIdentity(block.loginKind, block.identities);
  subscribeOrderBroadcasts(layer, identity, "nse_ipo");
  subscribeOrderBroadcasts(layer, identity, "bse_ipo");
  startClientOverview(block);
  refreshOrderBook(layer, "nse_ipo", block.userId());
  refreshOrderBook(layer, "bse_ipo", block.userId());
  requestUserOrders(layer, "nse_ipo", block.userId());
  requestUserOrders(layer, "bse_ipo", block.userId());
  requestCategories(layer);
  requestPeerData(layer, block.userId());
}

}  // namespace

bool compatibilityCheck(PluginPlatform& platform) {
  if (controlBlock()) return true;
  PromptPort& prompt = platform.prompt();
  const SymbolLookup* module = platform.hostModule();
  if (!module) {
    prompt.message("exe Module not found");
    return false;
  }
  auto getExeApp = lookup<pu_get_exe_app_fn>(*module, "pu_get_exe_app");
  if (!getExeApp) {
    prompt.message("Exe is not compatible with VAP");
    return false;
  }
  VornExeApp* exeApp = getExeApp();
  auto isRightEnabled = lookup<pu_is_actionright_enabled_fn>(*module, "pu_is_actionright_enabled");
  if (!isRightEnabled) {
    prompt.message("Initialisation failed. VAP not compatible with Trader version.");
    return false;
  }
  if (!isRightEnabled(useRightName())) {
    prompt.message("You are not enabled on OFS.");
    return false;
  }
  auto* block = new COFSControlBlock(*module, platform);
  setControlBlock(block);
  if (block->peerData)
    block->peerData(block->identities[1], block->identities[2], block->identities[0]);
  if (exeApp && exeApp->versionText) block->identities[3] = exeApp->versionText;
  return true;
}

void initPlugin(PluginPlatform& platform, IVornHostApp* app, const std::string& userId,
                uint32_t loginKind) {
  if (!compatibilityCheck(platform)) return;
  COFSControlBlock& block = *controlBlock();
  block.loginKind = loginKind;
  block.identities[0] = userId;
  block.app = app;
  if (!platform.hostModule()) {
    platform.prompt().message("Cant rename VornTrader.exe,Module not found");
    return;
  }
  openMessaging(block, platform.prompt());
  openDocument(block, platform);
  block.mappedAccounts.clear();
  if (block.services.getAllMappedAccountIds)
    block.services.getAllMappedAccountIds(block.mappedAccounts);
  platform.createImageList();
  sendStartupRequests(block);
}

void exitPlugin(PluginPlatform& platform) {
  COFSControlBlock* block = controlBlock();
  if (!block) return;
  block->subscriptionGate->close();
  platform.destroyDialogWindows();
  block->bookLists.open.clear();
  block->bookLists.closed.clear();
  block->recordMaps.clear();
  if (platform.frameExists()) platform.saveLayoutAndCloseFrame();
  setControlBlock(nullptr);
  delete block;
}

int activateClient(const std::string& clientId) {
  COFSControlBlock* block = controlBlock();
  if (!block) return 0;
  theActiveClient = clientId;
  if (block->onActiveClientChanged) block->onActiveClientChanged(clientId);
  return 1;
}

void applyFontPreference(int64_t* variation, int64_t* stamp) {
  COFSControlBlock* block = controlBlock();
  if (!block || !block->services.getFontVariation) return;
  int64_t first = 0;
  int64_t second = 0;
  block->services.getFontVariation(variation ? variation : &first, stamp ? stamp : &second);
  block->fontVariation = {variation ? *variation : first, stamp ? *stamp : second};
  block->platform.reapplyFonts(block->fontVariation[0], block->fontVariation[1]);
}

const std::string& activeClient() {
  return theActiveClient;
}
