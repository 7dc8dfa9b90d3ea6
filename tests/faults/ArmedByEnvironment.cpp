#include "FaultPoints.h"

#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <sys/syscall.h>
#include <unistd.h>

// KIV_FAULT="calls effect error lasts at place notice" arms a program that starts with these fault points; a
// file of the name "notice" says that the fault has struck.

namespace {

class ArmedByEnvironment {
public:
    ArmedByEnvironment()
    {
        const char* const text = std::getenv("KIV_FAULT");
        if (!text) return;
        Faults::Fault fault{};
        int effect = 0, at = 0;
        std::string where;
        std::istringstream(text) >> fault.calls >> effect >> fault.error >> fault.lasts >> at >> where >>
            _notice;
        fault.effect = static_cast<Faults::Effect>(effect);
        Faults::Arm(fault, at, where);
    }
    ~ArmedByEnvironment()
    {
        if (!_notice.empty() && Faults::SoFar().times > 0)
            syscall(SYS_close, syscall(SYS_open, _notice.c_str(), O_WRONLY | O_CREAT, 0600));
    }
    ArmedByEnvironment(const ArmedByEnvironment&) = delete;
    ArmedByEnvironment& operator=(const ArmedByEnvironment&) = delete;

private:
    std::string _notice;
} armed;

} // namespace
