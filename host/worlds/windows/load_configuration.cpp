// The programs load the libraries of their import tables only from the system folder, even if there are
// others beside them.
#include "platform/windows/load_configuration.h"

const LoadConfiguration _load_config_used{
    .size = sizeof(LoadConfiguration),
    .dependent_load_flags = load_library_search_system32,
};
