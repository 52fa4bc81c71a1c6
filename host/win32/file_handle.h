#pragma once
#include <cstdio>
#include <memory>

namespace tolva::host {

struct FileCloser {
    void operator()(FILE* file) const { fclose(file); }
};

// A C file closed with this object.
using FileHandle = std::unique_ptr<FILE, FileCloser>;

} // namespace tolva::host
