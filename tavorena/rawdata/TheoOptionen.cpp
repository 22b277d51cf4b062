#include <tavorena/core/Datei.h>
#include <tavorena/core/System.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/rawdata/TheoOptionen.h>

namespace tavorena {

TheoAblage TheoHaken;

std::string TheoStandarddatei() {
  std::string Ordner;
  for (const char* Name : {"temp", "TEMP", "tmp", "TMP"}) {
    if (Ordner.empty()) Ordner = Umgebungswert(Name);
  }
  if (Ordner.empty()) Ordner = Startordner();
  const std::string Name = PfadVerbinden(Ordner.empty() ? "c:\\" : Ordner, "\\tvtheo.gsi");
  return Systempfad(Name).lexically_normal().string();
}

std::string TheoGerät(int Port) {
  const std::string Benannt = Umgebungswert(Port == 1 ? "TAVORENA_COM1" : "TAVORENA_COM2");
  return !Benannt.empty() ? Benannt : Anschlußname(Port == 1 ? 1 : 2);
}

}  // namespace tavorena
