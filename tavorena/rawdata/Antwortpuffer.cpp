#include <utility>

#include <tavorena/rawdata/Antwortpuffer.h>

namespace tavorena {

void Antwortpuffer::Nehmen(std::string_view Bytes) { Inhalt += Bytes; }

bool Antwortpuffer::Nächste(std::string& Antwort) {
  const std::string_view Höchstens = std::string_view(Inhalt).substr(0, Ab + Grenze);
  const std::size_t Vorschub = Höchstens.find('\n', Gesucht);
  const std::size_t Ende = Vorschub == std::string_view::npos ? Höchstens.size() : Vorschub + 1;
  if (Vorschub == std::string_view::npos && Ende - Ab < Grenze) {
    Inhalt.erase(0, Ab);
    Ab = 0;
    Gesucht = Inhalt.size();
    return false;
  }
  Antwort.assign(Inhalt, Ab, Ende - Ab);
  Ab = Gesucht = Ende;
  return true;
}

std::string Antwortpuffer::Rest() {
  std::string Übrig = Inhalt.substr(Ab);
  *this = {};
  return Übrig;
}

void TVTheoFragezeichenWeg(std::string& Antwort) {
  const std::size_t Länge = Antwort.size();
  if (Länge >= 3 && Antwort[Länge - 3] == '?') Antwort.resize(Länge - 3);
}

void OhneZeilenende(std::string& Antwort) {
  for (const char Ende : {'\n', '\r'}) {
    if (!Antwort.empty() && Antwort.back() == Ende) Antwort.pop_back();
  }
}

}  // namespace tavorena
