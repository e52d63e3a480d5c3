// Takes what makes up a machine from a registry export, and ignores the rest.
#pragma once

#include <cstddef>
#include <set>
#include <span>

#include "host/machine_file/registry_export.h"
#include "host/machine_file/registry_tree.h"

namespace host {

class MachineKeeper : public ExportReceiver {
public:
    // What is kept goes below HKEY_LOCAL_MACHINE. Both arguments belong to the caller.
    MachineKeeper(TreeKey& root, std::size_t& count) : root_(root), count_(count) {}

    KeyUse Key(std::u16string_view path) override;
    void DeleteKey(std::u16string_view path) override;
    void SetValue(std::u16string_view name, DWORD type, std::span<const BYTE> data) override;
    void DeleteValue(std::u16string_view name) override;

private:
    TreeKey& root_;
    std::size_t& count_;
    std::span<const std::u16string_view> values_; // kept of the current key; all if the first is empty
    TreeKey* key_ = nullptr;
    std::set<sim::Text, NameOrder> names_; // of the key's values: a key may have thousands
};

} // namespace host
