// "zesh serve": the interface manager as a daemon (see ze_ifm_wire.h).
#pragma once

namespace zesh {

// Runs the daemon with the words after "serve"; returns the exit status.
int serve_main(int argc, char **argv);

}  // namespace zesh
