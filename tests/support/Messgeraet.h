#pragma once

#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <poll.h>
#include <string>
#include <string_view>
#include <termios.h>
#include <thread>
#include <unistd.h>

namespace tavorena::test {

/// An instrument at the other end of a pseudo terminal, which plays a script in a thread of its own. It waits
/// for nothing longer than twenty seconds.
class Messgerät {
 public:
  explicit Messgerät(std::function<void(Messgerät&)> Skript) : Ende(posix_openpt(O_RDWR | O_NOCTTY)) {
    if (grantpt(Ende) != 0 || unlockpt(Ende) != 0) std::abort();
    Name = ptsname(Ende);
    Gegenstelle =
        open(Name.c_str(), O_RDWR | O_NOCTTY);  // stays open: no hang-up before the program opens it
    termios T{};
    tcgetattr(Gegenstelle, &T);
    cfmakeraw(&T);
    tcsetattr(Gegenstelle, TCSANOW, &T);
    Faden = std::thread([this, Skript = std::move(Skript)] { Skript(*this); });
  }
  ~Messgerät() {
    Faden.join();
    Auflegen();
  }
  Messgerät(const Messgerät&) = delete;
  Messgerät& operator=(const Messgerät&) = delete;

  std::string Name;             ///< of the device
  std::atomic<int> Gefragt{0};  ///< so many words came

  /// Waits until the program asks for a measurement.
  void WortAbwarten() {
    std::string Wort;
    pollfd Frage{Ende, POLLIN, 0};
    while (!Wort.ends_with("Wrzlbrmpft\r") && poll(&Frage, 1, 20000) == 1) {
      char z = 0;
      if (read(Ende, &z, 1) != 1) return;
      Wort += z;
    }
    Gefragt += Wort == "Wrzlbrmpft\r" ? 1 : 0;
  }
  void Senden(std::string_view Bytes) const {
    while (!Bytes.empty()) {
      const ssize_t Anzahl = write(Ende, Bytes.data(), Bytes.size());
      if (Anzahl <= 0) return;
      Bytes.remove_prefix(static_cast<std::size_t>(Anzahl));
    }
  }
  static void Pause(int Millisekunden) {
    std::this_thread::sleep_for(std::chrono::milliseconds(Millisekunden));
  }
  /// The cable is pulled out.
  void Auflegen() {
    for (int* Offenes : {&Gegenstelle, &Ende}) {
      if (*Offenes >= 0) close(*Offenes);
      *Offenes = -1;
    }
  }

 private:
  int Ende, Gegenstelle;
  std::thread Faden;
};

}  // namespace tavorena::test
