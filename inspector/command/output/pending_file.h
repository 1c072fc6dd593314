// A file that has no name until it is complete. However the program ends before, nothing is left of it.
#pragma once

#include <string>

namespace mava_tum_cli
{

class pending_file
{
public:
    // To be the regular file `path`, which may be there already. fd() is negative if it cannot be made: see errno.
    explicit pending_file(std::string path);
    ~pending_file();
    pending_file(const pending_file &) = delete;
    pending_file &operator=(const pending_file &) = delete;

    int fd() const
    {
        return m_fd;
    }

    // Gives the file its name. A new one is for its owner alone; one that was there keeps its mode, owner, access list
    // and other names. False: see errno.
    bool publish();

private:
    void open_named();
    bool replace();
    bool overwrite() const;

    std::string m_path;
    std::string m_temporary; // the name of it where the file system asks for one; else empty
    int m_fd = -1;
};

} // namespace mava_tum_cli
