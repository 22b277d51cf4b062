#include <iterator>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/rawdata/Messleitung.h>

namespace tavorena {
namespace {

constexpr std::string_view Messwort = "Wrzlbrmpft\r";  // what instruments measure at

// Brings all lines into the file and to the disk.
int Schreiben(const std::string& Datei, const std::vector<Antwortzeile>& Zeilen) {
  std::string Bytes;
  for (const Antwortzeile& Z : Zeilen) Bytes += Z.Text + "\r\n";
  if (BytesAnhängen(Datei, Bytes) == 0 && AnhängeSichern() == 0) return 0;
  Hinweis("Rohdatendatei\n" + Datei +
          "\nkann nicht geöffnet werden !\nÜberprüfen Sie, ob das Verzeichnis existiert, "
          "und die Schreibrechte !");
  return -1;
}

}  // namespace

int Messleitung::Verbinden(const std::string& Gerät, const std::string& Einstellungen) {
  Name = Gerät;
  Draht = LeitungenPort().LeitungÖffnen(Gerät, Einstellungen);
  return Draht != nullptr ? 0 : Verlust();
}

int Messleitung::Verlust() {
  Draht.reset();
  LaufzeitFehlerMeldung(Laufzeitfehler::EinAusgabe, "Theodolit " + Name);
  return -1;
}

void Messleitung::Trennen() {
  const std::size_t Vorher = Offene.size();
  if (Draht != nullptr && Draht->Offen()) Aufnehmen(Draht->Lesen());
  Draht.reset();
  std::string Rest = Puffer.Rest();
  if (Rest.empty() && Vorher == Offene.size()) return;  // what waits for its file was told
  if (!Rest.empty()) ZeileAufnehmen(std::move(Rest));
  std::vector<Antwortzeile> Letzte;
  static_cast<void>(Nachholen(Letzte));
}

int Messleitung::Anfordern() {
  if (Draht == nullptr) return -1;
  return Draht->Senden(Messwort) == 0 ? 0 : Verlust();
}

void Messleitung::ZeileAufnehmen(std::string Antwort) {
  Antwortzeile Z;
  Z.Überlang = Antwort.size() >= Antwortpuffer::Grenze && !Antwort.ends_with('\n');
  if (!Z.Überlang) TVTheoFragezeichenWeg(Antwort);
  OhneZeilenende(Antwort);
  Z.Text = std::move(Antwort);
  if (!Z.Überlang) Z.Befund = RohdatenZeileReduzieren(Z.Text, Ablage.Parameter, Ablage.Reduktion);
  Offene.push_back(std::move(Z));
}

void Messleitung::Aufnehmen(std::string_view Bytes) {
  Puffer.Nehmen(Bytes);
  std::string Antwort;
  while (Puffer.Nächste(Antwort)) ZeileAufnehmen(Antwort);
}

int Messleitung::Nachholen(std::vector<Antwortzeile>& Neue) {
  if (Offene.empty()) return 0;
  if (Schreiben(Ablage.Datei, Offene) < 0) return -1;
  Neue.insert(Neue.end(), std::make_move_iterator(Offene.begin()), std::make_move_iterator(Offene.end()));
  Offene.clear();
  return 0;
}

int Messleitung::Holen(std::vector<Antwortzeile>& Neue) {
  if (Draht == nullptr) return -1;
  const std::string Bytes = Draht->Lesen();
  const std::size_t Vorher = Offene.size();
  Aufnehmen(Bytes);
  if (Offene.size() > Vorher) static_cast<void>(Nachholen(Neue));
  // What came before the loss is looked at first.
  return !Bytes.empty() || Draht == nullptr || Draht->Offen() ? 0 : Verlust();
}

void Messleitung::Einspeisen(std::string_view Zeile, std::vector<Antwortzeile>& Neue) {
  ZeileAufnehmen(std::string(Zeile));
  static_cast<void>(Nachholen(Neue));
}

}  // namespace tavorena
