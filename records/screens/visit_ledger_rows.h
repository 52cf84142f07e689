#pragma once

#include "platform/screen/rows.h"

namespace records {

/// The declaration of the visit ledger 治療台帳3: the visit and its commands, then the day grid.
const screen::ScreenRow& visitLedgerDeclaration();

screen::Rows visitRows();    ///< one visit, the list of visits, the commands
screen::Rows dayGridRows();  ///< 療養費の日付の記入: the claim of a month and its days

}  // namespace records
