// Requests that administer issues. Every builder returns 1 whatever happened.
#pragma once

#include <cstdint>
#include <string>

#include "messaging/message_layer.h"

int32_t requestCancelUnallotted(MessageLayer& layer, const std::string& issueId,
                                const std::string& exchange);
