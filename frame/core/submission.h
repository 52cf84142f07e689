#pragma once

#include <QString>

namespace frame {

/// The association that the clinic submits its claims to, in the two prefectures that have a choice. The
/// settings file stores it as a digit.

/// Aichi: 愛知県鍼灸師会 ("3") or 愛知県鍼灸マッサージ師会 ("4", and whatever else is stored).
enum class AichiSubmission { AcupunctureMassageAssociation, AcupunctureAssociation };

/// Tokyo: 東京都鍼灸師会 ("5") or 会員外 ("6", and whatever else is stored).
enum class TokyoSubmission { NonMember, AcupunctureAssociation };

inline AichiSubmission aichiSubmissionOf(const QString& stored) {
  return stored == u"3" ? AichiSubmission::AcupunctureAssociation
                        : AichiSubmission::AcupunctureMassageAssociation;
}

inline TokyoSubmission tokyoSubmissionOf(const QString& stored) {
  return stored == u"5" ? TokyoSubmission::AcupunctureAssociation : TokyoSubmission::NonMember;
}

}  // namespace frame
