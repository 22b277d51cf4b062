#pragma once

#include <cstdint>
#include <string>

namespace tavorena {

/// Cadastre attributes of a point, used when the current file came from EDBS or LT4.
struct KorInfoSatz {
  std::int16_t Punktart = 0;
  std::int16_t Punktstatus = 0;
  std::int16_t Aktualitaet = 0;
  std::int16_t Vermarkungsart = 0;
  double BemZurVerm = 0;
  std::string Entstehung;
  std::string Lagestatus;  ///< three digits in files
  std::string Lagegenauigkeit;
  std::int16_t ArtHoehenbestimmung = 0;

  bool operator==(const KorInfoSatz&) const = default;
};

/// What a coordinate file is written in. The numbers are those of the recent files; a history that another
/// program has written may bring others, which nothing reads or writes.
enum class Dateiformat : std::int16_t {
  Kor = 0,
  Edbs = 1,
  Lt4 = 2,  ///< also ALK
};

}  // namespace tavorena
