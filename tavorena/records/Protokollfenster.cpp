#include <algorithm>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Protokollfenster.h>

namespace tavorena {
namespace {

constexpr std::size_t Grenze = 32000;  // characters

}  // namespace

Fenstertext Protokollfenster;

void Fenstertext::Anhängen(std::string_view Stück) {
  const std::size_t Ende = Zeichen > Grenze ? Text.find('\n') : std::string::npos;
  if (Ende != std::string::npos) {
    Zeichen -= ZeichenAnzahl(std::string_view(Text).substr(0, Ende + 1));
    Text.erase(0, Ende + 1);
    ++Entfallen;
  }
  Text += Stück;
  Zeichen += ZeichenAnzahl(Stück);
  Angehängt += Stück.size();
}

void Fenstertext::Leeren() {
  const int Nächster = Beginn + 1;
  *this = {};
  Beginn = Nächster;
}

void FensterAusDatei(const std::string& Protokolldatei) {
  Protokollfenster.Leeren();
  AnzeigePort().ProtokollGeändert();
  std::string Text;
  if (Protokolldatei.empty() || TextdateiLesen(Protokolldatei, Text) < 0) return;
  std::erase_if(Text, [](char c) { return c == '\r' || c == '\f'; });
  std::size_t Ab = Text.size() > Grenze ? Text.find('\n', Text.size() - Grenze) + 1 : 0;
  while (Ab < Text.size()) {
    const std::size_t Ende = std::min(Text.find('\n', Ab), Text.size());
    const std::string_view Zeile = std::string_view(Text).substr(Ab, Ende - Ab);
    Protokollfenster.Anhängen(std::string(Zeile.starts_with("      ") ? Zeile.substr(6) : Zeile) + "\n");
    Ab = Ende + 1;
  }
}

Fensterwechsel FensterLesen(const Fenstertext& Fenster, Fensterstand& Stand) {
  const std::size_t Neu = Fenster.Angehängt - Stand.Angehängt;
  Fensterwechsel W;
  // Begun anew, or some went out that was never looked at.
  W.VonVorn = Stand.Beginn != Fenster.Beginn || Neu > Fenster.Text.size();
  W.Entfallen = W.VonVorn ? 0 : Fenster.Entfallen - Stand.Entfallen;
  W.Neues = Fenster.Text;
  if (!W.VonVorn) W.Neues.remove_prefix(Fenster.Text.size() - Neu);
  Stand = {Fenster.Beginn, Fenster.Angehängt, Fenster.Entfallen};
  return W;
}

}  // namespace tavorena
