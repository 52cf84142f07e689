#pragma once

#include <QDate>
#include <span>

#include "claims/core/consent_watch.h"
#include "platform/report/report_operations.h"

namespace printing {

inline constexpr int kConsentRowsOnPage = 36;

/// Pages that so many rows take; a list without rows is a page with its head alone.
int consentPages(qsizetype rows);

/// Draws one page, counted from 0, of the list of consents that run out: date, heading and column line, then
/// its rows. What is too long for its column is set smaller, and cut with … where even that does not do. The
/// first page sets the margins for all.
void drawConsentPage(report::ReportOperations& engine, std::span<const claims::ConsentEnd> rows, QDate today,
                     int page);

}  // namespace printing
