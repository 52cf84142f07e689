#pragma once

#include <QString>
#include <array>

namespace frame {

/// Entries of DataFolders that code names.
namespace folder {
inline constexpr int kPatients = 0, kAppointments = 1, kClaims1 = 2, kAcupoints = 3, kPhrases1 = 4,
                     kPhrases2 = 5, kVisits = 6, kSpare7 = 7, kSpare8 = 8, kSpare9 = 9, kUpdatePage = 10,
                     kDoctors = 11, kInsurers = 12, kFees = 13, kClaims2 = 14, kPictures = 15, kCount = 16;
}

/// DataFolders: sixteen full paths; an entry is a file path except the last, a folder.
using DataFolders = std::array<QString, folder::kCount>;

}  // namespace frame
