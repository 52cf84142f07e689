#include "frame/screens/profile_screen.h"

#include "frame/core/prefecture.h"
#include "frame/core/routes.h"
#include "frame/screens/profile_rows.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t kAichi[] = u"23";
constexpr char16_t kTokyo[] = u"13";

/// How a field's control holds its value.
enum class Kind { Text, Flag, MassageToo, Submission };

Kind kindOf(const ProfileField& field) {
  if (field.slot == profile::kMassageToo) return Kind::MassageToo;
  if (field.slot == slot::kAichi || field.slot == slot::kTokyo) return Kind::Submission;
  return QStringView(field.control).startsWith(u"Check") ? Kind::Flag : Kind::Text;
}

QString controlOf(const ProfileField& field) { return QString::fromUtf16(field.control); }

}  // namespace

ProfileScreen::ProfileScreen(screen::Services& services, RunState& run)
    : Screen(kProfileDeclaration, services), m_run(run) {}

void ProfileScreen::onLoad() {
  showProfile();
  showPrefecture();
}

void ProfileScreen::showProfile() {
  for (const ProfileField& field : profileFields()) {
    const QString value = m_run.profile[field.slot];
    switch (kindOf(field)) {
      case Kind::Text:
        setText(controlOf(field), value);
        break;
      case Kind::Flag:
        setChecked(controlOf(field), value == u"1");
        break;
      case Kind::MassageToo:
        setChecked(u"Check1(1)"_s, value == u"on");
        setChecked(u"Check1(0)"_s, value != u"on");
        break;
      case Kind::Submission:
        break;  // with the prefecture, from the run's submissions
    }
  }
}

void ProfileScreen::showPrefecture() {
  if (const std::optional<QString> edition = prefectureEdition(m_run.prefectureCode))
    setCaption(u"Label34"_s, *edition);
  setShown(u"Frame1"_s, m_run.prefectureCode == kAichi);
  setShown(u"Frame2"_s, m_run.prefectureCode == kTokyo);
  choose(u"Frame1"_s, m_run.aichiSubmission == u"4" ? u"4"_s : u"3"_s);
  choose(u"Frame2"_s, m_run.tokyoSubmission == u"5" ? u"5"_s : u"6"_s);
}

QString ProfileScreen::fieldValue(const ProfileField& field) const {
  switch (kindOf(field)) {
    case Kind::Flag:
      return checked(controlOf(field)) ? u"1"_s : u"0"_s;
    case Kind::MassageToo:
      return checked(u"Check1(1)"_s) ? u"on"_s : u""_s;
    case Kind::Submission:
      return field.slot == slot::kAichi ? m_run.aichiSubmission : m_run.tokyoSubmission;
    case Kind::Text:
      break;
  }
  return text(controlOf(field));
}

// The run takes the values before the question; a キャンセル there comes back to the typed values.
void ProfileScreen::save() {
  m_run.aichiSubmission = chosen(u"Frame1"_s) == u"4" ? u"4"_s : u"3"_s;
  m_run.tokyoSubmission = chosen(u"Frame2"_s) == u"5" ? u"5"_s : u"6"_s;
  for (const ProfileField& field : profileFields()) m_run.profile[field.slot] = fieldValue(field);
  navigator().show(routes::AskProfile{});
  navigator().unload(routes::Profile::screen);
}

void ProfileScreen::cancel() { navigator().unload(routes::Profile::screen); }

void ProfileScreen::chooseKind(int index) {
  const QString other = index == 0 ? u"Check1(1)"_s : u"Check1(0)"_s;
  const QString self = index == 0 ? u"Check1(0)"_s : u"Check1(1)"_s;
  setChecked(other, !checked(self));
}

}  // namespace frame
