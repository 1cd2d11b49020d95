#include "host/sim/answers.h"

namespace sim {

Answers::Answers(const RequestFields& request, IIrbeNotifier* asker)
    : name_(request.name()), asker_(asker) {
  for (uint32_t i = 0; i < request.count(kTag); ++i)
    tags_.emplace_back(kTag, request.text(kTag, i));
}

void Answers::row(const SimFields& fields) {
  reply(fields);
}

void Answers::succeed() {
  reply({{kStatus, ""}});
  ended_ = true;
}

void Answers::fail(const Refusal& refusal) {
  reply({{kStatus, refusal.code}, {kStatus, refusal.text}});
  ended_ = true;
}

void Answers::liveUpdate(IIrbeNotifier* to, const SimFields& fields) {
  SimFields message{{kName, name_}};
  message.insert(message.end(), fields.begin(), fields.end());
  out_.push_back({to, true, std::move(message)});
}

void Answers::reply(SimFields fields) {
  fields.insert(fields.begin(), {kName, name_});
  fields.insert(fields.end(), tags_.begin(), tags_.end());
  out_.push_back({asker_, false, std::move(fields)});
}

}  // namespace sim
