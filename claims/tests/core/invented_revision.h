#pragma once

#include <QFileInfo>
#include <vector>

#include "claims/core/amount_item_checks.h"
#include "claims/core/counters.h"
#include "claims/core/era.h"
#include "claims/core/fee_files.h"
#include "claims/tests/core/claim_builder.h"

namespace claims::testing {

/// An invented revision of the acupuncture fees from 令和60年6月, as rows next to those of the program: new
/// prices in a fee file of their own, and one new surcharge a visit, with a tick, three record fields and
/// three boxes.
class InventedRevision final : public FeeSource {
 public:
  static constexpr rule::Date kFrom{2078, 6};
  static constexpr char16_t kMark[] = u"鍼データ集結見本";
  static constexpr char16_t kFile[] = u"料金設定2078";
  static constexpr store::Column kTick = claim::spareE[31];
  static constexpr int kFirstBox = 901;

  InventedRevision() {
    const std::span<const FeeFileRow> files = feeFileRows();
    m_files.push_back({kFrom, u"料金設定2078.mdb"});
    m_files.insert(m_files.end(), files.begin(), files.end());
    m_eras.assign(eras().begin(), eras().end());
    KindRules& rules = m_eras.back().acupuncture;
    m_items.assign(rules.items.begin(), rules.items.end());
    m_items.push_back({.label = u"見本加算",
                       .counter = counters::visitDays,
                       .fee = Fee::KyuElectricFirst,  // priced by no other item
                       .tick = kTick,
                       .from = kFrom,
                       .field = {lastField(rules.items, rules.versions.back()) + 1},
                       .boxes = lineBoxes(kFirstBox)});
    m_versions.assign(rules.versions.begin(), rules.versions.end());
    m_versions.push_back({kMark, kFrom});
    rules.items = m_items;
    rules.versions = m_versions;
  }
  InventedRevision(const InventedRevision&) = delete;

  EraTable table() const { return m_eras; }
  const KindRules& acupuncture() const { return m_eras.back().acupuncture; }
  const AmountItem& surcharge() const { return m_items.back(); }
  std::span<const FeeFileRow> files() const { return m_files; }

  /// The prices of the revision; all other files are the program's.
  text::Result<FeeEdition> load(const QString& path) override {
    if (QFileInfo(path).completeBaseName() != kFile) return m_stored.load(path);
    FeeEdition edition;
    edition.set(Fee::Hari, 2000);
    edition.set(hariVisitFee(0, 1), 4000);
    edition.set(Fee::Sudden, 2500);
    edition.set(Fee::KyuElectricFirst, 70);
    return edition;
  }

 private:
  CsvFees m_stored;
  std::vector<FeeFileRow> m_files;
  std::vector<AmountItem> m_items;
  std::vector<RecordVersion> m_versions;
  std::vector<Era> m_eras;
};

}  // namespace claims::testing
