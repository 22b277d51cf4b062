#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/records/Block.h>

// Three-dimensional calculations in the records. A case, one block of the batch file.

namespace tavorena {

/// What is calculated, in the order of the commands.
enum class DreiDArt { Raumstrecke, Mitte, Schwerpunkt, Lotabstand, Kanalmessstab, Winkel };

/// Title of the protocol and the batch block: "3D Raumstrecke".
[[nodiscard]] const char* DreiDTitel(DreiDArt Art);
/// Known points that it needs.
[[nodiscard]] int DreiDPunkte(DreiDArt Art);
/// It makes a point.
[[nodiscard]] bool DreiDMitNeupunkt(DreiDArt Art);
/// The kind of a title in any case; none if it is another one.
[[nodiscard]] std::optional<DreiDArt> DreiDVon(std::string_view Titel);

/// A point in space [m].
struct Raumpunkt {
  std::string Pnr;
  double Rechts = 0, Hoch = 0, Hoehe = 0;
  std::string Symbol;
};

/// A case.
struct ProtdreiD {
  DreiDArt Art = DreiDArt::Raumstrecke;
  std::vector<Raumpunkt> Punkte;
  std::vector<double> Werte;     ///< in the order of DreiDWerte
  std::optional<Raumpunkt> Neu;  ///< new point or foot; without number it was not stored
};

/// A value that is shown.
struct DreiDWert {
  const char* Name;
  bool Gon;  ///< an angle [gon], otherwise a length [m]
};
/// The values of a kind, in the order in which they are shown.
[[nodiscard]] const std::vector<DreiDWert>& DreiDWerte(DreiDArt Art);

/// The line of a point alone, with a mark behind it: for a case that is taken back.
[[nodiscard]] Block DreiDZeile(int Nachkomma, const Raumpunkt& P, const std::string& Marke);
/// The same of its values, where no point was stored.
[[nodiscard]] Block DreiDWertzeilen(int Nachkomma, const ProtdreiD& D, const std::string& Marke);

/// Given points, values, the new point.
[[nodiscard]] Block DreiDBlock(int Nachkomma, const ProtdreiD& D);

/// A case as it was typed.
struct DreiDEingabe {
  std::vector<std::string> Pnr;  ///< as many as the kind needs
  std::string NeuPnr;            ///< where the kind makes a point; empty: not stored
  double Abstand = 0;            ///< of the "Kanalmeßstab" [m]
};
/// Its record.
[[nodiscard]] std::vector<std::string> StapelDreiD(DreiDArt Art, DreiDEingabe E);
/// Reads a whole block. @return 0; -1 error
[[nodiscard]] int StapelLeseDreiD(DreiDArt Art, DreiDEingabe& E);

}  // namespace tavorena
