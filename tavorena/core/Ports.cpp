#include <chrono>
#include <ctime>
#include <thread>
#include <utility>

#include <tavorena/core/Ports.h>
#include <tavorena/core/System.h>

namespace tavorena {
namespace {

Ports Gesetzt;

template <typename Port>
Port& Offen(Port* Gesetzter) {
  static Port Still;
  return Gesetzter != nullptr ? *Gesetzter : Still;
}

}  // namespace

Zeitpunkt Ablauf::Jetzt() {
  const std::tm t = Ortszeit(std::time(nullptr));
  return {t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min};
}

double Ablauf::Zeitgeber() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void Ablauf::Warten(double Sekunden) {
  EreignisseAbarbeiten();
  std::this_thread::sleep_for(std::chrono::duration<double>(Sekunden));
}

Rückfragen& FragenPort() { return Offen(Gesetzt.Fragen); }
Anzeige& AnzeigePort() { return Offen(Gesetzt.Schirm); }
Ablauf& AblaufPort() { return Offen(Gesetzt.Takt); }
Umgebung& UmgebungPort() { return Offen(Gesetzt.Rechner); }
Leitungen& LeitungenPort() { return Offen(Gesetzt.Draht); }
Druckwerk& DruckwerkPort() { return Offen(Gesetzt.Presse); }

Ports PortsSetzen(const Ports& Neue) { return std::exchange(Gesetzt, Neue); }

}  // namespace tavorena
