#include "frame/core/eras.h"

namespace frame {
namespace {

constexpr Era kEras[] = {
    {u"明治", u'M', 1868, 1, 25}, {u"大正", u'T', 1912, 7, 30}, {u"昭和", u'S', 1926, 12, 25},
    {u"平成", u'H', 1989, 1, 8},  {u"令和", u'R', 2019, 5, 1},
};

}  // namespace

std::span<const Era> eras() { return kEras; }

const Era* eraOf(QDate date, bool reiwaKnown) {
  const Era* found = nullptr;
  for (const Era& era : kEras) {
    if (era.letter == u'R' && !reiwaKnown) break;
    if (date >= era.begin()) found = &era;
  }
  return found;
}

}  // namespace frame
