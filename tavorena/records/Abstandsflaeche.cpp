#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Abstandsflaeche.h>
#include <tavorena/records/Spalten.h>

namespace tavorena {

Block AbstandsflächenBlock(int Nachkomma, const Protabstandsfläche& A) {
  const Spalten S(Nachkomma);
  return Zahlenblock(Nachkomma, {Leerzeichen(6) + "Wand" + S.Zahl(A.Länge, 5) + " x" + S.Zahl(A.Höhe, 5) +
                                 " m  Faktor" + ZahlFormat(A.Faktor, 2, 3) + "  Tiefe" + S.Zahl(A.Tiefe, 6) +
                                 " m  Fläche" + S.Zahl(A.Fläche, 9) + " m²"});
}

}  // namespace tavorena
