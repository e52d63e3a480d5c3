// The programs take the libraries of their import tables from the system folder only, whatever lies beside
// them.
#include "platform/windows/load_configuration.h"

const LoadConfiguration _load_config_used{
    .size = sizeof(LoadConfiguration),
    .dependent_load_flags = load_library_search_system32,
};
