#pragma once

#include <gtest/gtest.h>

#include "platform/report/report_engine.h"
#include "platform/report/tests/pdf_reading.h"

namespace report::testing {

/// An engine over a folder of its own, whose documents stay in memory.
class EngineTest : public ::testing::Test {
 protected:
  void writeTemplate(const QString& name, const QString& content) {
    QFile file(m_folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content.toUtf8());
  }

  /// One page of the template with these items shown and set, as a document.
  QByteArray printed(const QString& name, const std::vector<std::pair<QString, QString>>& items) {
    EXPECT_LE(m_engine.PR_StartDC(0, m_engine.PR_GetPrinterDC(), QStringLiteral("見本"), kStartFlags),
              kStartFailureAbove);
    EXPECT_EQ(m_engine.PR_LoadReport(0, 0, name), 0);
    for (const auto& [item, text] : items) {
      m_engine.PR_RepSetVisible(item, kShown);
      m_engine.PR_RepSetText(item, text);
    }
    m_engine.PR_PlayReport();
    m_engine.PR_EndDoc();
    return m_documents.empty() ? QByteArray() : m_documents.back().pdf;
  }

  QTemporaryDir m_folder;
  std::vector<MemorySink::Document> m_documents;
  ReportEngine m_engine{m_folder.path(),
                        [this](const PrinterChoice&) { return std::make_unique<MemorySink>(m_documents); }};
};

}  // namespace report::testing
