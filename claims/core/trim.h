#pragma once

#include <QString>
#include <QStringList>

#include "claims/core/claim_record.h"

namespace claims {

/// The papers whose boxes limit the texts.
enum class TrimForm { Claim, TreatmentRecord };

struct TrimResult {
  ClaimRecord claim;
  QStringList cut;  ///< names of the columns that were cut, in the order of the table
};

/// Cuts over-long texts to what the form prints, by the kind of the claim (施術内容 あマ: massage). Lengths
/// are counted in characters.
TrimResult trimForPrint(const ClaimRecord& claim, TrimForm form);

/// Blanks around the insurer's fields taken off, as the store does for 全国健康保険協会, 共済, 組合, 社保.
ClaimRecord trimInsurer(const ClaimRecord& claim);
/// Whether the store trims and cuts a claim of this 保険の種類.
bool storeTrims(const QString& insurance);

/// The one message after a cut, with a line break between its sentences.
inline constexpr char16_t kTrimMessage[] =
    u"印刷出来る文字数を超えている項目があったので文字を可能な数まで削りました。\n"
    u"削った項目名は赤字になっています。";

}  // namespace claims
