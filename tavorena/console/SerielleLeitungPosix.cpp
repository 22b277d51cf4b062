#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <iterator>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

#include <tavorena/console/SerielleLeitung.h>
#include <tavorena/core/Deskriptor.h>
#include <tavorena/core/Leitungswerte.h>

namespace tavorena {
namespace {

constexpr std::pair<int, speed_t> Raten[] = {
    {300, B300},   {600, B600},     {1200, B1200},   {2400, B2400},   {4800, B4800},
    {9600, B9600}, {19200, B19200}, {38400, B38400}, {57600, B57600}, {115200, B115200}};

class Geräteleitung final : public Leitung {
 public:
  explicit Geräteleitung(Deskriptor Offenes) : K(std::move(Offenes)) {}

  int Senden(std::string_view Bytes) override {
    while (K && !Bytes.empty()) {
      const ssize_t Anzahl = write(K.Nummer(), Bytes.data(), Bytes.size());
      if (Anzahl > 0) {
        Bytes.remove_prefix(static_cast<std::size_t>(Anzahl));
      } else if (errno != EINTR && !(errno == EAGAIN && SchreibenMöglich())) {
        K = Deskriptor();
      }
    }
    return K ? 0 : -1;
  }

  std::string Lesen() override {
    std::string Alles;
    char Stück[4096];
    while (K && Alles.size() < MeisteBytes) {
      const ssize_t Anzahl = read(K.Nummer(), Stück, sizeof Stück);
      if (Anzahl > 0) {
        Alles.append(Stück, static_cast<std::size_t>(Anzahl));
      } else if (Anzahl < 0 && (errno == EAGAIN || errno == EINTR)) {
        break;
      } else {
        K = Deskriptor();  // hung up, or unplugged
      }
    }
    return Alles;
  }

  [[nodiscard]] bool Offen() const override { return static_cast<bool>(K); }

 private:
  static constexpr std::size_t MeisteBytes = 1 << 20;  // taken at once
  static constexpr int Sendefrist = 1000;              // for room in the queue of the device [ms]

  [[nodiscard]] bool SchreibenMöglich() const {
    pollfd Frage{K.Nummer(), POLLOUT, 0};
    return poll(&Frage, 1, Sendefrist) == 1 && (Frage.revents & POLLOUT) != 0;
  }

  Deskriptor K;
};

// Raw bytes, no handshake, no signals; modem lines are not looked at.
bool Einstellen(int Nummer, const Leitungswerte& W) {
  termios T{};
  if (tcgetattr(Nummer, &T) != 0) return false;
  const auto* Rate =
      std::find_if(std::begin(Raten), std::end(Raten), [&](const auto& R) { return R.first == W.Baud; });
  if (Rate == std::end(Raten)) return false;
  cfmakeraw(&T);
  T.c_iflag |= IGNBRK;
  T.c_cflag &= ~static_cast<tcflag_t>(CSIZE | CSTOPB | PARENB | PARODD | CRTSCTS);
  constexpr tcflag_t Größen[] = {CS5, CS6, CS7, CS8};
  T.c_cflag |= CLOCAL | CREAD | Größen[W.Datenbits - 5];
  if (W.Stopbits == 2) T.c_cflag |= CSTOPB;
  if (W.Parität != 'N') T.c_cflag |= PARENB;
  if (W.Parität == 'O') T.c_cflag |= PARODD;
  T.c_cc[VMIN] = 1;  // an empty read then means the end
  T.c_cc[VTIME] = 0;
  return cfsetspeed(&T, Rate->second) == 0 && tcsetattr(Nummer, TCSANOW, &T) == 0;
}

}  // namespace

std::unique_ptr<Leitung> SerielleLeitung(const std::string& Gerät, const std::string& Einstellungen) {
  Leitungswerte W;
  if (LeitungswerteLesen(Einstellungen, W) < 0) return nullptr;
  Deskriptor K(open(Gerät.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
  if (!K || isatty(K.Nummer()) == 0 || !GerätNehmen(K.Nummer())) return nullptr;
  static_cast<void>(ioctl(K.Nummer(), TIOCEXCL));  // for programs that do not look at the lock
  if (!Einstellen(K.Nummer(), W)) return nullptr;
  return std::make_unique<Geräteleitung>(std::move(K));
}

}  // namespace tavorena
