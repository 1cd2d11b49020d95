#include "tests/host_sim/sim_fixture.h"

#include "tests/support/local_time.h"

#include <algorithm>
#include <ctime>
#include <sstream>
#include <stdexcept>

#include "host/sim/data_file.h"

namespace simtest {

const char* const kFixtureData = R"(
issue id=N1 exchange=nse_ipo code=ABC series=RS symbol=ABC-RS open=-1 close=+1 floor=100.00 tick=0.05 minqty=10 lot=5 cutoff=Y asset=ABC bidding=Y modcancel=Y
issue id=N2 exchange=nse_ipo code=ABC series=IS symbol=ABC-IS open=0 close=0 floor=100.00 tick=0.05 minqty=1 lot=1 cutoff=N bidding=Y
issue id=N3 exchange=nse_ipo code=OLD series=RS symbol=OLD-RS open=-5 close=-1 floor=10.00 tick=0.05 bidding=Y
issue id=N4 exchange=nse_ipo code=NEW series=RS symbol=NEW-RS open=+1 close=+2 floor=10.00 tick=0.05 bidding=Y
issue id=N5 exchange=nse_ipo code=HLD series=IS symbol=HLD-IS open=-1 close=+1 floor=10.00 tick=0.05 bidding=N
issue id=B1 exchange=bse_ipo code=XYZ series=Retail symbol=XYZ-Retail open=0 close=0 floor=400.00 tick=0.25 bidding=Y modcancel=Y
issue id=B2 exchange=bse_ipo code=XYZ series=NonRetail symbol=XYZ-NonRetail open=0 close=0 floor=400.00 tick=0.25 bidding=Y modcancel=N
account id=A1 pcode=PC1 custodian=CU1 name="Asha Rao"
account id=A2
category series=Retail value=RI
category series=Retail value=RIC
asset exchange=nse_cm symbol=ABC ltp=245.30
peer user=U1 data=PEER
order no=501 issue=N1 account=A2 qty=10 price=101.00
order no=502 issue=N1 account=A1 procli=F qty=20 price=102.00
order no=503 issue=N1 walkin=W1 qty=15 price=MKT
order no=504 issue=N1 account=A2 qty=10 price=101.00 status=cancelled
order no=505 issue=B1 account=A2 qty=4 price=400.00
order no=506 user=U2 issue=N1 account=A2 qty=10 price=103.00
order no=507 issue=B2 account=A2 qty=4 price=400.00
)";

int64_t fixedClock() {
  return localTime(21, 11, 2026, 10 * 3600 + 15 * 60);
}

namespace {

sim::ExchangeData load(const std::string& text) {
  std::istringstream in(text);
  std::string error;
  auto data = sim::readExchangeData(in, error);
  if (!data) throw std::runtime_error(error);
  return *data;
}

std::optional<std::string> terminalAccount(const std::string& id) {
  if (id == "T1") return std::string("TPC");
  return std::nullopt;
}

}  // namespace

SimFixture::SimFixture() : SimFixture(kFixtureData) {}

SimFixture::SimFixture(const std::string& data)
    : exchange(load(data), {fixedClock, terminalAccount}) {}

sim::Deliveries SimFixture::ask(const std::string& name, const FieldList& fields) {
  std::vector<otpx::Field> views{{0, name}};
  for (const auto& [id, v] : fields) views.push_back({id, v});
  return exchange.request(*otp_message::build(views), &asker);
}

void SimFixture::subscribeListeners() {
  exchange.subscribe({{31003, "U1"}, {63001, "nse_ipo"}, {64001, ""}}, &listener);
  exchange.subscribe({{31003, "U1"}, {63001, "bse_ipo"}, {64001, ""}}, &bseListener);
}

FieldList changed(FieldList fields, const std::string& changes) {
  for (const auto& change : fieldsOf(changes)) {
    const uint32_t id = change.first;
    auto it = std::find_if(fields.begin(), fields.end(), [id](auto& f) { return f.first == id; });
    if (it == fields.end()) {
      fields.push_back(change);
    } else {
      it->second = change.second;
    }
  }
  return fields;
}

FieldList placement(const std::string& changes) {
  return changed(fieldsOf("64030=CNC 63001=nse_ipo 31003=U1 54001=A2 63100=N1 12004=10 12008=L "
                          "10306=10150 54056=C 64170=YES 12005=OFS"),
                 changes);
}

std::vector<std::string> values(const sim::Delivery& d, uint32_t id) {
  std::vector<std::string> found;
  for (const auto& [field, v] : d.fields)
    if (field == id) found.push_back(v);
  return found;
}

std::string value(const sim::Delivery& d, uint32_t id) {
  const auto found = values(d, id);
  return found.empty() ? "<absent>" : found.front();
}

Lines describe(const SimFixture& f, const sim::Deliveries& out, const std::vector<uint32_t>& ids) {
  Lines lines;
  for (const sim::Delivery& d : out) {
    std::ostringstream line;
    line << (d.live ? "live " : "reply ")
         << (d.to == &f.asker      ? "asker"
             : d.to == &f.listener ? "listener"
                                   : "bse")
         << " " << value(d, sim::kName);
    for (uint32_t id : ids)
      for (const std::string& v : values(d, id)) line << " " << id << "=" << v;
    lines.push_back(line.str());
  }
  return lines;
}

}  // namespace simtest
