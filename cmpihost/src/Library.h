// Library: a dlopen'ed shared object. For a fresh life the file is first
// copied to a private temporary file, which is opened instead and removed
// again when the library is closed; the copy has its own inode, so the
// dynamic loader gives it its own, fresh static state.
#ifndef CMPIHOST_SRC_LIBRARY_H
#define CMPIHOST_SRC_LIBRARY_H

#include <memory>
#include <string>

namespace cmpihost::detail {

class Library {
public:
    // Null on failure, with the loader's message (or why the copy failed)
    // in error.
    static std::unique_ptr<Library> open(const std::string& path, bool globalSymbols,
                                         bool freshCopy, std::string& error);
    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    // dlsym; null when absent.
    void* symbol(const std::string& name) const;
    // The file actually opened.
    const std::string& file() const { return m_file; }

private:
    Library(void* handle, std::string file, bool temporary)
        : m_handle(handle), m_file(std::move(file)), m_temporary(temporary) {}

    void* m_handle;
    std::string m_file;
    bool m_temporary;
};

}  // namespace cmpihost::detail

#endif
