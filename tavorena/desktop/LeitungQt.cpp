#include <QSerialPort>

#include <tavorena/core/Deskriptor.h>
#include <tavorena/core/Leitungswerte.h>
#include <tavorena/desktop/LeitungQt.h>

namespace tavorena {
namespace {

class Qtleitung final : public Leitung {
 public:
  [[nodiscard]] bool Öffnen(const QString& Gerät, const Leitungswerte& W) {
    // A device that is gone tells it again and again, and its port still calls itself open.
    QObject::connect(&Port, &QSerialPort::errorOccurred, &Port, [this](QSerialPort::SerialPortError Fehler) {
      if (Fehler == QSerialPort::NoError || Fehler == QSerialPort::TimeoutError || !Port.isOpen()) return;
      Rest += Port.readAll();
      Port.close();
    });
    Port.setPortName(Gerät);
    Port.setBaudRate(W.Baud);
    Port.setDataBits(static_cast<QSerialPort::DataBits>(W.Datenbits));
    Port.setStopBits(W.Stopbits == 2 ? QSerialPort::TwoStop : QSerialPort::OneStop);
    Port.setParity(W.Parität == 'E'   ? QSerialPort::EvenParity
                   : W.Parität == 'O' ? QSerialPort::OddParity
                                      : QSerialPort::NoParity);
    // The lock tells other programs of ours, and root too, that the device is in use.
    return Port.open(QIODevice::ReadWrite) && GerätNehmen(Port.handle());
  }

  int Senden(std::string_view Bytes) override {
    const auto Anzahl = static_cast<qint64>(Bytes.size());
    return Port.isOpen() && Port.write(Bytes.data(), Anzahl) == Anzahl ? 0 : -1;
  }

  std::string Lesen() override {
    if (Port.isOpen()) Rest += Port.readAll();
    return std::exchange(Rest, {}).toStdString();
  }

  [[nodiscard]] bool Offen() const override { return Port.isOpen(); }

 private:
  QSerialPort Port;
  QByteArray Rest;  // came before the device was lost
};

}  // namespace

std::unique_ptr<Leitung> LeitungQt(const std::string& Gerät, const std::string& Einstellungen) {
  Leitungswerte W;
  if (LeitungswerteLesen(Einstellungen, W) < 0) return nullptr;
  auto Neue = std::make_unique<Qtleitung>();
  return Neue->Öffnen(QString::fromStdString(Gerät), W) ? std::unique_ptr<Leitung>(std::move(Neue)) : nullptr;
}

}  // namespace tavorena
