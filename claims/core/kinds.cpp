#include "claims/core/kinds.h"

namespace claims {

Kind kindOf(const QString& treatment) {
  if (treatment == u"鍼灸" || treatment == u"鍼" || treatment == u"灸") return Kind::Acupuncture;
  if (treatment == u"あマ") return Kind::Massage;
  return Kind::None;
}

}  // namespace claims
