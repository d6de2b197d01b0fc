// Ctrl-C ends a waiting command (watch, job) cleanly: the provider is
// still unloaded as an object manager would at shutdown.
#ifndef VEXRAID_INTERRUPT_H
#define VEXRAID_INTERRUPT_H

namespace vexraid {

// From now on SIGINT and SIGTERM only set the flag.
void catchInterrupt();
bool interrupted();

}  // namespace vexraid

#endif
