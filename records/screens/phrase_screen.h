#pragma once

#include <span>

#include "records/screens/dictionary.h"

namespace records {

/// A list of stock phrases. Moving in the list puts the phrase on the clipboard.
class PhraseScreen final : public DictionaryScreen {
 public:
  using DictionaryScreen::DictionaryScreen;

  /// The phrase of the row goes onto the clipboard.
  void rowReached() override;
  /// The text in the field becomes a new row; the row that it was typed over stays as it was stored. A blank
  /// field starts a new row that 更新 stores.
  void add();
};

/// The two phrase lists, each with a table of its own.
std::span<const DictionaryRow> phraseDictionaries();

}  // namespace records
