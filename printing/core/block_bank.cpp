#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr Variant kBranch[] = {{8, u"Name47"}, {kAnyLength, u"Name471"}};
constexpr Variant kHolder[] = {{36, u"kouza3"}, {kAnyLength, u"kouza4"}};
constexpr int kAccountBoxes = 8;

/// An item that circles one of the printed words, and the column that names it.
struct ChoiceRow {
  const char16_t* item;
  const char16_t* column;
};
constexpr ChoiceRow kChoices[] = {
    {u"yokin2", u"預金の種類"}, {u"kinyuu3", u"金融機関名種類"}, {u"kinyuu6", u"本店支店名種類"}};

}  // namespace

void bankBlock(Sheet& sheet) {
  sheet.show(u"siharai_kbn", u"支払い機関区分");
  const Switch whose = sheet.settings.of(Setting::Bank);
  if (whose == Switch::Empty) return;
  const QString owner = whose == Switch::On ? QString() : QStringLiteral("代表者");
  const auto value = [&](QStringView column) { return sheet.value(owner + column.toString()); };

  // A payment through the post office names no bank.
  sheet.fields.show(u"Name14", value(u"金融機関名").isEmpty() ? value(u"郵便局名") : value(u"金融機関名"));
  sheet.fields.variant(kBranch, value(u"本店支店名"));
  for (const ChoiceRow& row : kChoices) sheet.fields.show(row.item, value(row.column));
  sheet.fields.show(u"kouza2", value(u"口座番号"));
  sheet.fields.digits(u"kouza_num", value(u"口座番号"), kAccountBoxes);
  // The box asks for katakana.
  const QString kana = value(u"口座名義カタカナ");
  sheet.fields.variant(kHolder, kana.isEmpty() ? value(u"口座名義") : kana);
}

}  // namespace printing
