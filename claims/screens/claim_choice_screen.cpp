#include "claims/screens/claim_choice_screen.h"

#include "claims/core/claim_file.h"
#include "claims/core/insurance.h"
#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/text/utf16.h"

namespace claims {
namespace {

using namespace screen;

constexpr const char16_t* kAsk = u"各ラジオボタンからそれぞれ選択してください。";
constexpr const char16_t* kMassage = u"あマ";
constexpr const char16_t* kFamily = u"家族";
constexpr const char16_t* kNotHead = u"世帯主でない本人";

constexpr Choice kInsurance[] = {
    {.name = {u"Option1", 0}, .caption = u"全国健康保険協会", .value = u"全国健康保険協会"},
    {.name = {u"Option1", 1}, .caption = u"共済", .value = u"共済"},
    {.name = {u"Option1", 2}, .caption = u"組合", .value = u"組合"},
    {.name = {u"Option1", 3}, .caption = u"国保", .value = u"国保"},
    {.name = {u"Option1", 4}, .caption = u"退職国保", .value = u"退職国保"},
    {.name = {u"Option1", 5}, .caption = u"特別国保", .value = u"特別国保"},
    {.name = {u"Option1", 6}, .caption = u"後期高齢", .value = u"後期高齢"},
};
constexpr Choice kTreatment[] = {
    {.name = {u"Option2", 0}, .caption = u"鍼灸治療", .value = u"鍼灸"},
    {.name = {u"Option2", 1}, .caption = u"マッサージ治療", .value = kMassage},
};
constexpr Choice kHolder[] = {
    {.name = {u"Option3", 0}, .caption = u"保険証の本人", .value = u"本人"},
    {.name = {u"Option3", 1}, .caption = u"保険証の家族", .value = kFamily},
    {.name = {u"Option3", 2}, .caption = kNotHead, .value = kNotHead},
};

constexpr Row kRows[] = {
    Note{.name = u"Label1", .caption = kAsk, .spoken = true},
    Options{
        .name = u"Frame1", .caption = u"保険の種類", .bind = Unbound{u"an answer"}, .choices = kInsurance},
    Options{.name = u"Frame2", .caption = u"治療方法", .bind = Unbound{u"an answer"}, .choices = kTreatment},
    Options{.name = u"Frame3",
            .caption = u"保険証（本証）の本人又は家族",
            .bind = Unbound{u"an answer"},
            .choices = kHolder},
    Bar{},
    Command{
        .name = u"Command1", .caption = u"ＯＫ", .run = run<&ClaimChoiceScreen::accept>, .standard = true},
    Command{
        .name = u"Command2", .caption = u"キャンセル", .run = run<&ClaimChoiceScreen::cancel>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kScreen = declare({.name = routes::ClaimChoice::screen,
                                       .caption = u"選択チェック",
                                       .rows = kRows,
                                       .heading = u"選択チェック"});

constexpr ControlRef kInsuranceGroup = ref(kRows, u"Frame1");
constexpr ControlRef kTreatmentGroup = ref(kRows, u"Frame2");
constexpr ControlRef kHolderGroup = ref(kRows, u"Frame3");

}  // namespace

ClaimChoiceScreen::ClaimChoiceScreen(screen::Services& services, frame::RunState& run, ClaimsState& state)
    : Screen(kScreen, services), m_run(run), m_state(state) {}

void ClaimChoiceScreen::opened(const screen::Request&) { focusOn(ref(kRows, u"Option1", 0)); }

std::optional<NewClaimChoice> ClaimChoiceScreen::choice() const {
  const QString insurance = chosen(kInsuranceGroup);
  const QString treatment = chosen(kTreatmentGroup);
  const QString holder = chosen(kHolderGroup);
  if (insurance.isEmpty() || treatment.isEmpty() || holder.isEmpty()) return std::nullopt;
  NewClaimChoice answer;
  answer.insurance = insurance;
  answer.treatment = treatment == kMassage ? Kind::Massage : Kind::Acupuncture;
  answer.holder = holder == kFamily    ? CardHolder::Family
                  : holder == kNotHead ? CardHolder::InsuredNotHead
                                       : CardHolder::Insured;
  return answer;
}

// The focus goes to the first group without an answer, so that the ear finds what is missing.
void ClaimChoiceScreen::tellUnanswered() {
  messages().tell(text::utf16(kAsk));
  for (const ControlRef& group : {kInsuranceGroup, kTreatmentGroup, kHolderGroup})
    if (chosen(group).isEmpty()) return focusOn(group);
}

void ClaimChoiceScreen::accept() {
  const auto answer = choice();
  if (!answer) return tellUnanswered();
  auto file = ClaimFile::open(m_run.folders);
  const auto id = file ? file->add(newClaim(m_state.newClaim, *answer, m_run.profile))
                       : text::Result<qint64>(file.fault());
  if (!id) {
    messages().tellDataFault(id.fault().message);
    return;
  }
  navigator().show(routes::ClaimForm{.id = *id, .opener = {}});
  close();
}

void ClaimChoiceScreen::cancel() { close(); }

}  // namespace claims
