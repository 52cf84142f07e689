#pragma once

#include <QSet>
#include <QString>
#include <functional>

#include "claims/core/claim_record.h"

namespace claims {

/// Which printing screen a claim opens on 鍼灸印刷 or あマ印刷, by its month, the clinic's prefecture and the
/// association; `checks` names the form's ticks that are set (Check7 公費の印刷). The rule belongs to
/// printing; the program hands it in at start.
using PrintScreenChooser = std::function<QString(const ClaimRecord& claim, const QSet<QString>& checks)>;

/// Shows the printer's own dialog for the window (プリンターオプション).
using PrinterSetup = std::function<void(quintptr window)>;

}  // namespace claims
