// Everything that a command can raise.
#include "host/GuardedRun.h"

#include <exception>
#include <new>

#include "foundation/KYRException.h"
#include "host/HostLog.h"
#include "host/KYRHostMessages.h"

int runGuarded(HostLog& log, int failureCode, const std::function<int()>& work) {
  try {
    return work();
  } catch (const KYRException& exception) {
    log.fail(exception.getMessage());
  } catch (const std::bad_alloc&) {
    log.fail(KYRHostMessages::OUT_OF_MEMORY.getMessage());
  } catch (const std::exception& exception) {
    log.fail(KYRHostMessages::UNEXPECTED_ERROR.getMessage(KYRString(exception.what())));
  } catch (...) {
    log.fail(KYRHostMessages::UNEXPECTED_ERROR.getMessage(KYRString()));
  }
  return failureCode;
}
