#include <utility>
#include <windows.h>

#include <tavorena/console/SerielleLeitung.h>
#include <tavorena/core/Breittext.h>
#include <tavorena/core/Deskriptor.h>
#include <tavorena/core/Leitungswerte.h>

namespace tavorena {
namespace {

class Geräteleitung final : public Leitung {
 public:
  explicit Geräteleitung(Deskriptor Offenes) : K(std::move(Offenes)) {}

  int Senden(std::string_view Bytes) override {
    while (K && !Bytes.empty()) {
      DWORD Anzahl = 0;
      const BOOL Gut =
          WriteFile(K.Nummer(), Bytes.data(), static_cast<DWORD>(Bytes.size()), &Anzahl, nullptr);
      if (Gut == FALSE || Anzahl == 0) K = Deskriptor();  // gone, or no room within the time
      Bytes.remove_prefix(Anzahl);
    }
    return K ? 0 : -1;
  }

  std::string Lesen() override {
    std::string Alles;
    char Stück[4096];
    while (K && Alles.size() < MeisteBytes) {
      DWORD Anzahl = 0;
      if (ReadFile(K.Nummer(), Stück, sizeof Stück, &Anzahl, nullptr) == FALSE) K = Deskriptor();
      if (Anzahl == 0) break;
      Alles.append(Stück, Anzahl);
    }
    return Alles;
  }

  [[nodiscard]] bool Offen() const override { return static_cast<bool>(K); }

 private:
  static constexpr std::size_t MeisteBytes = 1 << 20;  // taken at once

  Deskriptor K;
};

// Raw bytes, no handshake; modem lines are not looked at.
bool Einstellen(HANDLE Gerät, const Leitungswerte& W) {
  DCB D{};
  D.DCBlength = sizeof D;
  if (GetCommState(Gerät, &D) == FALSE) return false;
  DCB Neu{};
  Neu.DCBlength = sizeof Neu;
  Neu.fBinary = TRUE;
  Neu.fDtrControl = DTR_CONTROL_ENABLE;
  Neu.fRtsControl = RTS_CONTROL_ENABLE;
  Neu.BaudRate = static_cast<DWORD>(W.Baud);
  Neu.ByteSize = static_cast<BYTE>(W.Datenbits);
  Neu.StopBits = W.Stopbits == 2 ? TWOSTOPBITS : ONESTOPBIT;
  Neu.Parity = W.Parität == 'E' ? EVENPARITY : W.Parität == 'O' ? ODDPARITY : NOPARITY;
  Neu.fParity = W.Parität != 'N';
  COMMTIMEOUTS Fristen{};
  Fristen.ReadIntervalTimeout = MAXDWORD;    // with the others at 0: what is there, at once
  Fristen.WriteTotalTimeoutConstant = 1000;  // for room in the queue of the device [ms]
  return SetCommState(Gerät, &Neu) != FALSE && SetCommTimeouts(Gerät, &Fristen) != FALSE;
}

}  // namespace

std::unique_ptr<Leitung> SerielleLeitung(const std::string& Gerät, const std::string& Einstellungen) {
  Leitungswerte W;
  if (LeitungswerteLesen(Einstellungen, W) < 0) return nullptr;
  const std::wstring Vorsatz = L"\\\\.\\", Name = Breittext(Gerät);
  // The long form is the one for ports from 10 on. Nobody else may open the device meanwhile.
  Deskriptor K(CreateFileW((Name.starts_with(Vorsatz) ? Name : Vorsatz + Name).c_str(),
                           GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  if (!K || !GerätNehmen(K.Nummer()) || !Einstellen(K.Nummer(), W)) return nullptr;
  return std::make_unique<Geräteleitung>(std::move(K));
}

}  // namespace tavorena
