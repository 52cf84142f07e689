#include "frame/screens/profile_screen.h"

#include "frame/core/prefecture.h"
#include "frame/core/routes.h"
#include "frame/screens/profile_rows.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t kAichiPrefecture[] = u"23";
constexpr char16_t kTokyoPrefecture[] = u"13";

using namespace profile_rows;

}  // namespace

ProfileScreen::ProfileScreen(screen::Services& services, RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

void ProfileScreen::onLoad() {
  showProfile();
  showPrefecture();
}

void ProfileScreen::showProfile() {
  for (const Setting& field : kTexts) setText(field.control, m_run.profile[field.slot]);
  for (const Setting& flag : kFlags) setChecked(flag.control, m_run.profile[flag.slot] == u"1");
  const bool massage = m_run.profile[slot::kMassageToo] == u"on";
  setChecked(kMassageToo, massage);
  setChecked(kAcupunctureOnly, !massage);
}

void ProfileScreen::showPrefecture() {
  if (const std::optional<QString> edition = prefectureEdition(m_run.prefectureCode))
    setCaption(kEdition, *edition);
  setShown(kAichiChoice, m_run.prefectureCode == kAichiPrefecture);
  setShown(kTokyoChoice, m_run.prefectureCode == kTokyoPrefecture);
  choose(kAichiChoice, m_run.aichiSubmission == u"4" ? u"4"_s : u"3"_s);
  choose(kTokyoChoice, m_run.tokyoSubmission == u"5" ? u"5"_s : u"6"_s);
}

// The run takes the values before the question; a キャンセル there comes back to the typed values.
void ProfileScreen::save() {
  m_run.aichiSubmission = chosen(kAichiChoice) == u"4" ? u"4"_s : u"3"_s;
  m_run.tokyoSubmission = chosen(kTokyoChoice) == u"5" ? u"5"_s : u"6"_s;
  ClinicProfile& profile = m_run.profile;
  for (const Setting& field : kTexts) profile[field.slot] = text(field.control);
  for (const Setting& flag : kFlags) profile[flag.slot] = checked(flag.control) ? u"1"_s : u"0"_s;
  profile[slot::kMassageToo] = checked(kMassageToo) ? u"on"_s : u""_s;
  profile[slot::kAichi] = m_run.aichiSubmission;
  profile[slot::kTokyo] = m_run.tokyoSubmission;
  navigator().show(routes::AskProfile{});
  navigator().unload(routes::Profile::screen);
}

void ProfileScreen::cancel() { navigator().unload(routes::Profile::screen); }

void ProfileScreen::chooseKind(int index) {
  const bool acupuncture = index == kAcupunctureOnly.index();
  const ControlRef& self = acupuncture ? kAcupunctureOnly : kMassageToo;
  const ControlRef& other = acupuncture ? kMassageToo : kAcupunctureOnly;
  setChecked(other, !checked(self));
}

}  // namespace frame
