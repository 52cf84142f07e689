#pragma once

#include <QString>
#include <vector>

namespace records {

/// The sheet that address labels are printed on: A4 with two columns of six labels, the common sheet of
/// twelve. Millimetres from the upper left corner of the paper.
namespace label {
inline constexpr int kColumns = 2;
inline constexpr int kRows = 6;
inline constexpr int kPerSheet = kColumns * kRows;
inline constexpr double kLeft = 18.6;
inline constexpr double kTop = 21.6;
inline constexpr double kWidth = 86.4;
inline constexpr double kHeight = 42.3;
inline constexpr double kMarginX = 6.0;  ///< left free inside each label: sheets feed a little askew
inline constexpr double kMarginY = 4.0;
inline constexpr double kTextSize = 3.6;  ///< twenty full-width characters, an address line, fit side by side
inline constexpr double kNameSize = 5.0;
inline constexpr double kLinePitch = 1.35;  ///< from line to line, in sizes of the text
inline constexpr char16_t kFont[] = u"ＭＳ 明朝";
}  // namespace label

/// What a label says, as it is in the patient table.
struct LabelAddress {
  QString postcode;
  QString lines[3];
  QString name;
};

/// A line of text on the sheet: its upper left corner and the height of its characters, millimetres.
struct LabelLine {
  double x = 0;
  double y = 0;
  double size = 0;
  QString text;
};

/// Sheets that so many labels take.
int labelSheets(int labels);

/// The lines of the label at a place of the sheet: 0 upper left, 1 upper right, 2 the next row's left.
///
/// "〒" and the postcode, the address lines, the name and "  様", each only when not blank. What is too wide
/// goes on in a further line; if the lines then do not fit, all are set smaller, so that no text leaves
/// its label.
std::vector<LabelLine> labelLines(const LabelAddress& address, int place);

/// Estimated width of a text, in heights of its characters; never less than what the print font takes.
double labelTextWidth(const QString& text);

}  // namespace records
