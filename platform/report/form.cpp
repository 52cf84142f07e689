#include "platform/report/form.h"

#include <algorithm>

namespace report {

void Form::reindex() {
  index.clear();
  index.reserve(int(items.size()));
  for (int i = 0; i < int(items.size()); ++i) index.insert(items[i].name, i);
}

bool isFrameName(const QString& name) {
  for (const QLatin1String stem :
       {QLatin1String("Text"), QLatin1String("Box"), QLatin1String("Line"), QLatin1String("waku_")}) {
    if (!name.startsWith(stem) || name.size() == stem.size()) continue;
    const auto number = QStringView(name).mid(stem.size());
    return std::all_of(number.begin(), number.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
  }
  return false;
}

const char* kindWord(Kind kind) {
  switch (kind) {
    case Kind::Label:
      return "label";
    case Kind::Text:
      return "text";
    case Kind::Line:
      return "line";
    case Kind::Box:
      return "box";
    case Kind::Digit:
      return "digits";
    case Kind::Mark:
      return "mark";
    case Kind::Choice:
      return "choice";
    case Kind::Picture:
      return "picture";
  }
  return "";
}

const std::vector<Paper>& papers() {
  static const std::vector<Paper> rows = {
      {"A3", "iso_a3_297x420mm", 297, 420},     {"A4", "iso_a4_210x297mm", 210, 297},
      {"A5", "iso_a5_148x210mm", 148, 210},     {"A6", "iso_a6_105x148mm", 105, 148},
      {"JIS-B4", "jis_b4_257x364mm", 257, 364}, {"JIS-B5", "jis_b5_182x257mm", 182, 257},
      {"JIS-B6", "jis_b6_128x182mm", 128, 182}, {"Hagaki", "jpn_hagaki_100x148mm", 100, 148},
  };
  return rows;
}

const Paper* findPaper(const QString& word) {
  for (const Paper& paper : papers())
    if (paper.word == word) return &paper;
  return nullptr;
}

}  // namespace report
