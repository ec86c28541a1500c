#include "desktop/InstanceLock.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

namespace qves {
namespace {

constexpr int PatienceMilliseconds = 3000;
constexpr unsigned long AttemptPauseMilliseconds = 20;

/// In the session's runtime folder and not in the home itself, whose path may be longer than a socket's may
/// be.
QString BaseFor(const std::string& home) {
  const QString base = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/qvescalc";
  if (home.empty()) return base;
  const QString folder = QFileInfo(QString::fromStdString(home)).canonicalFilePath();
  return base + '-' + QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha1).toHex();
}

QString SocketName(const QString& base) {
  return base + ".socket";
}

int Remaining(const QDeadlineTimer& patience) {
  return static_cast<int>(patience.remainingTime());
}

}  // namespace

InstanceLock::InstanceLock(const std::string& home) : Base(BaseFor(home)), Lock(Base + ".lock") {
  Lock.setStaleLockTime(0);  // however long the first copy has been running
}

bool InstanceLock::Acquire() {
  return Lock.tryLock() || Lock.error() != QLockFile::LockFailedError;
}

void InstanceLock::Listen(std::function<void(const std::string&)> raise) {
  Raise = std::move(raise);
  QObject::connect(&Server, &QLocalServer::newConnection, [this] { Answer(Server.nextPendingConnection()); });
  // Whoever holds the lock owns the name: what is there is of a copy that was killed.
  QLocalServer::removeServer(SocketName(Base));
  Server.setSocketOptions(QLocalServer::UserAccessOption);
  Server.listen(SocketName(Base));
}

/// A question is a line with the token. Hanging up is the answer.
void InstanceLock::Answer(QLocalSocket* asking) {
  QObject::connect(asking, &QLocalSocket::disconnected, asking, &QObject::deleteLater);
  QObject::connect(asking, &QLocalSocket::readyRead, asking, [this, asking] {
    if (!asking->canReadLine()) return;
    Raise(asking->readLine().trimmed().toStdString());
    asking->disconnectFromServer();
  });
}

bool InstanceLock::AskFirst(const std::string& token) const {
  const QDeadlineTimer patience(PatienceMilliseconds);
  QLocalSocket first;
  first.connectToServer(SocketName(Base));
  // The first copy may have been started in the same moment and not listen yet.
  while (!first.waitForConnected(Remaining(patience)) && !patience.hasExpired()) {
    QThread::msleep(AttemptPauseMilliseconds);
    first.connectToServer(SocketName(Base));
  }
  if (first.state() != QLocalSocket::ConnectedState) return false;
  first.write(QByteArray::fromStdString(token) + '\n');
  return first.waitForDisconnected(Remaining(patience));
}

}  // namespace qves
