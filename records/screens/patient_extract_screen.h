#pragma once

#include "platform/screen/list_screen.h"

namespace records {

/// 抽出3: narrows the list of patients by sex, keyword, age or address, each kind with an input of its own.
/// If the list refuses, which it reports, the dialog stays with what was typed.
class PatientExtractScreen : public screen::Screen {
 public:
  explicit PatientExtractScreen(screen::Services& services);

  void extract();
  void cancel() { close(); }
  /// What is typed or chosen in a kind's input means that kind.
  void chooseSex();
  void typeWord();
};

/// The criteria of a kind (性別, キーワード, 年齢以上, 年齢以下, 住所) for the text of its input.
QString extractCriteria(const QString& kind, const QString& word);

}  // namespace records
