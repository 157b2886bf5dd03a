// SPDX-License-Identifier: MIT
#ifndef APP_LOGIN_LOCKOUT_H_
#define APP_LOGIN_LOCKOUT_H_

#include <ctime>
#include <mutex>
#include <string>

/**
 * Says who may ask the store about a password. After five failures in a row nobody may for 300 seconds.
 *
 * An attempt counts as a failure from its beginning until it has succeeded. So no more of them are under way
 * at the same time than failures are left before the lockout, and passwords that are tried all at once are
 * stopped by it like those that are tried one by one. Thread safe.
 */
class LoginLockout
{
public:
  enum class Verdict {
    Go,
    Wait,     ///< others are being tried, and might be the last that may be; ask again soon
    LockedOut ///< whoever is told so takes the failures so far back
  };

  /// One attempt. It has failed unless succeeded() was called before it is destroyed.
  class Attempt
  {
  public:
    explicit Attempt(LoginLockout &lockout);
    ~Attempt();
    Attempt(const Attempt &) = delete;
    Attempt &operator=(const Attempt &) = delete;

    Verdict verdict() const { return verdict_; }
    void succeeded();

  private:
    LoginLockout &lockout_;
    const Verdict verdict_;
    bool open_;
  };

  /// The numbers belong to the caller, and nobody else touches them. They are read from the file, if there is
  /// one, and written to it when they change, so that a server that is started again does not forget a
  /// lockout. An empty name means that they are not kept.
  LoginLockout(int &failureCount, std::time_t &lockoutTimeSec, std::string stateFile);

  /// The file of this process, in the directory that its supervisor names; empty if it names none.
  static std::string stateFileOfProcess();

private:
  Verdict begin();
  void end(bool succeeded);
  void read();
  void write() const;

  std::mutex mutex_;
  int &failureCount_;
  std::time_t &lockoutTimeSec_; ///< when the present lockout began
  const std::string stateFile_;
  int underWay_ = 0;
};

#endif // APP_LOGIN_LOCKOUT_H_
