// A document that its sink refuses: the operations answer nothing of it, the engine keeps the fault.

#include "platform/report/tests/engine_fixture.h"

namespace report::testing {
namespace {

class RefusingSink final : public DocumentSink {
 public:
  explicit RefusingSink(const bool& refuses) : m_refuses(refuses) {}
  bool open(const QString&) override { return true; }
  text::Done take(const QByteArray&) override {
    return m_refuses ? text::Done(text::Fault{QStringLiteral("断り")}) : text::Done();
  }

 private:
  const bool& m_refuses;
};

TEST(RefusedDocument, IsAFaultUntilTheNextDocument) {
  QTemporaryDir folder;
  bool refuses = true;
  ReportEngine engine(folder.path(),
                      [&](const PrinterChoice&) { return std::make_unique<RefusingSink>(refuses); });
  const auto print = [&engine] {
    ASSERT_EQ(engine.PR_StartDC(0, 1, QStringLiteral("見本"), kStartFlags), kStarted);
    EXPECT_TRUE(engine.lastDocument()) << "the one before is forgotten";
    engine.PR_Output(0, 0, QStringLiteral("見本"));
    engine.PR_EndPage();
    engine.PR_EndDoc();
  };
  EXPECT_TRUE(engine.lastDocument());
  print();
  ASSERT_FALSE(engine.lastDocument());
  EXPECT_EQ(engine.lastDocument().fault().message, QStringLiteral("断り"));
  refuses = false;
  print();
  EXPECT_TRUE(engine.lastDocument());
}

}  // namespace
}  // namespace report::testing
