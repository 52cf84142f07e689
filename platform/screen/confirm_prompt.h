#pragma once

#include <QHash>
#include <functional>
#include <span>
#include <vector>

#include "platform/screen/screen.h"

namespace screen {

/// A button of a confirmation screen. The action is looked up by name, so that the table of prompts needs
/// no code; kClosePrompt only closes the prompt.
struct PromptButton {
  ControlName name;
  Words caption;
  Words action;
};
inline constexpr char16_t kClosePrompt[] = u"close";

/// A small confirmation or notice screen: all its lines are heard when it opens, the question first.
struct ConfirmRow {
  Words name;  ///< 登録の実行
  Words caption;
  std::span<const Note> lines;
  std::span<const PromptButton> buttons;
};

class ConfirmPrompt;
/// What the buttons do, by the names of the rows. The prompt is open when an action runs and closes
/// afterwards.
using PromptActions = QHash<QString, std::function<void(ConfirmPrompt&)>>;

namespace detail {
/// The declaration of a prompt, made before the screen that is built from it.
struct PromptDeclaration {
  explicit PromptDeclaration(const ConfirmRow& prompt);
  std::vector<Row> rows;
  ScreenRow screenRow;
};
}  // namespace detail

/// A screen made from one row of the table of prompts. Escape is the refusal: it presses the last of several
/// buttons; with a single button that does more than closing it does nothing.
class ConfirmPrompt : private detail::PromptDeclaration, public Screen {
 public:
  ConfirmPrompt(const ConfirmRow& prompt, const PromptActions& actions, Services& services);

  void opened(const Request& request) override { m_request = request; }
  QStringList openingTexts() const override;
  /// What the opener handed over (by name: the screen that asked, ...).
  const Request& request() const { return m_request; }

  void press();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  const ConfirmRow& m_prompt;
  const PromptActions& m_actions;
  Request m_request;
};

}  // namespace screen
