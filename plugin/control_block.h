// The one process-wide object that owns everything of the plug-in while it runs.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "messaging/message_layer.h"
#include "plugin/host_service_table.h"
#include "plugin/plugin_platform.h"
#include "sdk/host_app.h"
#include "sdk/rx_control.h"

class CWatchView;

class COFSControlBlock final : public IIrbeNotifier {
 public:
  // Binds the host's services from `hostModule`.
  COFSControlBlock(const SymbolLookup& hostModule, PluginPlatform& platform);
  ~COFSControlBlock();
  COFSControlBlock(const COFSControlBlock&) = delete;
  COFSControlBlock& operator=(const COFSControlBlock&) = delete;

  // [0] user id, [1] and [2] peer identities, [3] host version text, [4] spare.
  std::array<std::string, 5> identities;
  StringList mappedAccounts;
  otp_handle_t handle = nullptr;
  otp_scratch_t scratch = nullptr;
  const SymbolLookup* hostModule;
  pu_get_peer_data_fn peerData = nullptr;
  uint32_t loginKind = 0;
  IVornHostApp* app = nullptr;
  std::unique_ptr<IVornDocTemplate> docTemplate;
  HostServiceTable services;
  std::string userDirectory;
  std::array<int64_t, 2> fontVariation{};
  // Text of the last "om_get_user_peer_data" answer.
  std::string peerDataText;

  MessageLayer layer;
  PluginPlatform& platform;
  CWatchView* watchView = nullptr;  // set while the watch view lives

  void OnLiveUpdate(otp_msg_t msg) override;
  void OnResponse(otp_msg_t msg) override;

  // Host services as the plug-in uses them; a missing service answers "no" or does nothing.
  bool hasRight(const std::string& rightName) const;
  void log(const std::string& line) const;
  void hostMessageBox(const std::string& text) const;
  const std::string& userId() const { return identities[0]; }
};

// The process-wide pointer: null before initialisation and after shutdown.
COFSControlBlock* controlBlock();
void setControlBlock(COFSControlBlock* block);
