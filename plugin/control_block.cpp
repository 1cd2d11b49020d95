#include "plugin/control_block.h"

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

void COFSControlBlock::OnLiveUpdate(otp_msg_t) {}

void COFSControlBlock::OnResponse(otp_msg_t) {}

bool COFSControlBlock::hasRight(const std::string& rightName) const {
  return services.isActionRightEnabled && services.isActionRightEnabled(rightName) != 0;
}

void COFSControlBlock::log(const std::string& line) const {
  if (services.addToTabbedLog) services.addToTabbedLog(line);
}

void COFSControlBlock::hostMessageBox(const std::string& text) const {
  if (services.showMessageBox) services.showMessageBox(text);
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
