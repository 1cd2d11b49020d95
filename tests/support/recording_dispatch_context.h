// The standalone context sending through a TestChannel, with helpers to feed it messages.
#pragma once

#include <string>
#include <vector>

#include "messaging/response_dispatcher.h"
#include "tests/support/message_fixtures.h"
#include "tests/support/standalone_context.h"
#include "tests/support/test_channel.h"

class RecordingDispatchContext : public StandaloneContext {
 public:
  MessageLayer& messageLayer() override { return channel.layer; }

  void respond(const FieldList& fields) { dispatchResponse(*this, makeMessage(fields).get()); }
  void update(const FieldList& fields) { dispatchLiveUpdate(*this, makeMessage(fields).get()); }
  // Order numbers of a book list, top line first.
  static std::vector<std::string> orderNumbers(const BookList& list);

  TestChannel channel;
};
