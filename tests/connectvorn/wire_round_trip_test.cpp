#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "connectvorn/connectvorn.h"

namespace {

struct Scratch {
  explicit Scratch(uint32_t capacity) {
    EXPECT_EQ(otp_open_scratch(&scratch, capacity, &err), 1);
    EXPECT_EQ(otp_ctor_primecb(&handle, &err), 1);
  }
  ~Scratch() {
    otp_dtor_primecb(&handle, &err);
    otp_close_scratch(&scratch, &err, 0);
  }
  bool add(uint32_t id, std::string_view v) {
    otp_value value{v.data(), static_cast<uint32_t>(v.size())};
    return otp_add_data(handle, id, OTP_TYPE_TEXT, &value, &err) != 0;
  }
  uint32_t used() const {
    uint32_t w;
    std::memcpy(&w, scratch, sizeof w);
    return w;
  }
  otp_scratch_t scratch = nullptr;
  otp_handle_t handle = nullptr;
  int err = 0;
};

TEST(WireRoundTrip, FieldsComeBackInOrderWithRepeatsEmptiesAndAnyBytes) {
  Scratch s(32768);
  ASSERT_EQ(otp_start_msg(s.handle, s.scratch, &s.err), 1);
  const std::string binary("a\0b\xff\x01\"\\", 7);
  const std::string big(5000, 'x');
  const std::vector<std::pair<uint32_t, std::string>> sent = {
      {0, "mrv_master"},    {20003, "6"},  {20003, "63050"}, {54001, ""},
      {UINT32_MAX, binary}, {127, "edge"}, {128, "edge2"},   {64001, big}};
  for (const auto& [id, v] : sent) ASSERT_TRUE(s.add(id, v)) << id;

  auto msg = otp_message::decode(otpx::currentMessage(s.handle), &s.err);
  ASSERT_TRUE(msg);
  std::vector<std::pair<uint32_t, std::string>> got;
  for (size_t i = 0; i < msg->fieldCount(); ++i)
    got.emplace_back(msg->fieldAt(i).id, std::string(msg->fieldAt(i).value));
  EXPECT_EQ(got, sent);

  otp_value v;
  ASSERT_EQ(otp_get_data(msg.get(), 20003, 1, &v, &s.err), 1);
  EXPECT_EQ(std::string(v.data, v.len), "63050");
  for (const auto& [id, occurrence] : {std::pair{20003u, 2u}, {99u, 0u}}) {
    s.err = 0;
    EXPECT_EQ(otp_get_data(msg.get(), id, occurrence, &v, &s.err), 0);
    EXPECT_EQ(s.err, OTP_E_ABSENT);
  }

  otp_field f;
  ASSERT_EQ(otp_get_field(msg.get(), 20003, &f, &s.err), 1);
  EXPECT_EQ(f.count, 2u);
  EXPECT_EQ(std::string(f.first.data, f.first.len), "6");
  EXPECT_EQ(otp_get_field(msg.get(), 32766, &f, &s.err), 0);
  EXPECT_EQ(f.count, 0u);
  EXPECT_EQ(s.err, OTP_E_ABSENT);
}

TEST(WireRoundTrip, ClearingTheFirstWordEmptiesTheBuffer) {
  Scratch s(256);
  for (const char* name : {"first", "second"}) {
    std::memset(s.scratch, 0, 4);
    ASSERT_EQ(otp_start_msg(s.handle, s.scratch, &s.err), 1);
    ASSERT_TRUE(s.add(0, name));
  }
  auto msg = otp_message::decode(otpx::currentMessage(s.handle), &s.err);
  ASSERT_TRUE(msg);
  ASSERT_EQ(msg->fieldCount(), 1u);
  EXPECT_EQ(msg->fieldAt(0).value, "second");
}

TEST(WireBufferFull, AFieldThatDoesNotFitFailsAndLeavesTheBufferAsItWas) {
  // 4-byte length word + one field of id 1 (1 byte) + type (1) + length (1) + 10 bytes = 17.
  Scratch s(17);
  ASSERT_EQ(otp_start_msg(s.handle, s.scratch, &s.err), 1);
  EXPECT_FALSE(s.add(1, std::string(11, 'y')));
  EXPECT_EQ(s.err, OTP_E_BUFFER_FULL);
  EXPECT_EQ(s.used(), 0u);
  EXPECT_TRUE(s.add(1, std::string(10, 'y')));
  EXPECT_EQ(s.used(), 13u);
  EXPECT_FALSE(s.add(2, ""));
  EXPECT_EQ(s.err, OTP_E_BUFFER_FULL);
  EXPECT_EQ(s.used(), 13u);
}

TEST(WireMisuse, OperationsRefuseNullsAndAddBeforeStart) {
  Scratch s(64);
  EXPECT_FALSE(s.add(1, "x"));
  EXPECT_EQ(s.err, OTP_E_NOT_STARTED);
  int err = 0;
  EXPECT_EQ(otp_start_msg(nullptr, s.scratch, &err), 0);
  EXPECT_EQ(otp_start_msg(s.handle, nullptr, &err), 0);
  otp_value v{"x", 1};
  ASSERT_EQ(otp_start_msg(s.handle, s.scratch, &err), 1);
  EXPECT_EQ(otp_add_data(s.handle, 1, 2, &v, &err), 0);
  EXPECT_EQ(err, OTP_E_BAD_TYPE);
  EXPECT_EQ(otp_get_data(nullptr, 1, 0, &v, &err), 0);
  EXPECT_EQ(otp_open_scratch(nullptr, 10, &err), 0);
  otp_scratch_t none = nullptr;
  EXPECT_EQ(otp_close_scratch(&none, &err, 0), 0);
}

TEST(WireMalformed, IsRefusedNotRead) {
  const std::pair<const char*, std::string> cases[] = {
      {"truncated_id", std::string("\x80", 1)},
      {"id_too_long", std::string("\xff\xff\xff\xff\x7f\x01\x00", 7)},
      {"no_type", std::string("\x01", 1)},
      {"wrong_type", std::string("\x01\x02\x00", 3)},
      {"length_past_end", std::string("\x01\x01\x05xyz", 6)},
      {"length_one_past_end", std::string("\x01\x01\x04xyz", 6)},
      {"truncated_length", std::string("\x01\x01\x80", 3)},
      {"overlong_id", std::string("\x81\x00\x01\x00", 4)}};
  for (const auto& [name, bytes] : cases) {
    int err = 0;
    EXPECT_EQ(otp_message::decode(bytes, &err), nullptr) << name;
    EXPECT_EQ(err, OTP_E_MALFORMED) << name;
  }
}

TEST(WireRender, SendLineQuotesAndEscapes) {
  const std::vector<otpx::Field> fields = {
      {0, "om_get_ofs_issues"}, {63001, "nse_ipo"}, {1, "a\"b\\c"}, {2, ""}, {3, "x\ny"}};
  EXPECT_EQ(otpx::renderLine("send", 2, fields),
            "send 2 om_get_ofs_issues 63001=\"nse_ipo\" 1=\"a\\\"b\\\\c\" 2=\"\" 3=\"x\\x0Ay\"");
  const std::vector<otpx::Field> keys = {{64056, ""}, {63001, "nse_ipo"}};
  EXPECT_EQ(otpx::renderLine("subscribe", 3, keys), "subscribe 3 64056=\"\" 63001=\"nse_ipo\"");
}

// Ids chosen to crowd the lookup table (many share a slot), repeated, in no order: every
// occurrence must still come back in message order, as a plain scan would find it.
TEST(WireLookup, AgreesWithAScanForCrowdedAndRepeatedIds) {
  std::vector<std::string> values;
  std::vector<otpx::Field> fields;
  for (uint32_t i = 0; i < 300; ++i) values.push_back(std::to_string(i));
  for (uint32_t i = 0; i < 300; ++i) fields.push_back({(i % 37) * 4096u + (i % 5), values[i]});
  auto msg = otp_message::build(fields);
  ASSERT_TRUE(msg);
  for (uint32_t id = 0; id < 37 * 4096u + 5; id += 1) {
    uint32_t occurrence = 0;
    for (const otpx::Field& f : fields) {
      if (f.id != id) continue;
      otp_value v{};
      ASSERT_TRUE(msg->find(id, occurrence, &v)) << id;
      EXPECT_EQ(std::string_view(v.data, v.len), f.value);
      ++occurrence;
    }
    EXPECT_EQ(msg->occurrences(id), occurrence) << id;
    otp_value v{};
    EXPECT_FALSE(msg->find(id, occurrence, &v));
  }
}

}  // namespace
