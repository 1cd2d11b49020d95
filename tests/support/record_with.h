// A record with the given members changed, so a fixture reads as one list of member and value:
// with(P{}, &P::side, "S", &P::margin, "YES").
#pragma once

#include <utility>

template <typename R>
R with(R r) {
  return r;
}
template <typename R, typename T, typename V, typename... More>
R with(R r, T R::*member, const V& value, const More&... more) {
  r.*member = value;
  return with(std::move(r), more...);
}
