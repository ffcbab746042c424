// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/FileRights.h"

#include <acl/libacl.h>
#include <cerrno>
#include <cstring>
#include <memory>
#include <string_view>
#include <sys/acl.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace {

using Acl = std::unique_ptr<std::remove_pointer_t<acl_t>, int (*)(void*)>;

void takeAttributes(int descriptor, const std::string& replaced)
{
    std::vector<char> names(std::size_t(std::max(listxattr(replaced.c_str(), nullptr, 0), ssize_t(0))));
    const ssize_t length = listxattr(replaced.c_str(), names.data(), names.size());
    for (ssize_t at = 0; at < length; at += ssize_t(std::strlen(&names[at])) + 1) {
        const char* name = &names[at];
        const ssize_t size = getxattr(replaced.c_str(), name, nullptr, 0);
        if (!std::string_view(name).starts_with("user.") || size < 0)
            continue;
        std::vector<char> value(size);
        if (getxattr(replaced.c_str(), name, value.data(), value.size()) == size)
            fsetxattr(descriptor, name, value.data(), value.size(), 0);
    }
}

/// Takes from an entry what the other one does not have.
void narrow(acl_entry_t entry, acl_entry_t other)
{
    acl_permset_t permissions, others;
    acl_get_permset(entry, &permissions);
    acl_get_permset(other, &others);
    for (const acl_perm_t permission : {ACL_READ, ACL_WRITE, ACL_EXECUTE})
        if (acl_get_perm(others, permission) == 0)
            acl_delete_perm(permissions, permission);
}

/// The list for a file of another group: members of neither group may more than before, whether they counted as the
/// group or as everybody.
void narrowToAnotherGroup(acl_t acl)
{
    acl_entry_t group = nullptr, everybody = nullptr, entry;
    for (int next = ACL_FIRST_ENTRY; acl_get_entry(acl, next, &entry) == 1; next = ACL_NEXT_ENTRY) {
        acl_tag_t tag;
        acl_get_tag_type(entry, &tag);
        if (tag == ACL_GROUP_OBJ)
            group = entry;
        else if (tag == ACL_OTHER)
            everybody = entry;
    }
    if (!group || !everybody)
        return;
    narrow(group, everybody);
    narrow(everybody, group);
}

} // namespace

void takeRights(int descriptor, const std::string& replaced, const struct stat& status)
{
    takeAttributes(descriptor, replaced);
    const bool keepsOwner = fchown(descriptor, status.st_uid, status.st_gid) == 0;
    const bool keepsGroup = keepsOwner || fchown(descriptor, uid_t(-1), status.st_gid) == 0;
    // Of a file without a list it is what the permissions say; set, it takes away a list that the folder has given.
    const Acl acl(acl_get_file(replaced.c_str(), ACL_TYPE_ACCESS), acl_free);
    if (!acl)
        return;
    if (!keepsGroup)
        narrowToAnotherGroup(acl.get());
    if (acl_set_fd(descriptor, acl.get()) == 0) {
        // The bits beyond the rights: set-user-id, set-group-id and sticky.
        if (keepsOwner && (status.st_mode & 07000) != 0)
            fchmod(descriptor, status.st_mode & 07777);
        return;
    }
    // Without lists on this file system the permissions are all. A list that cannot be kept might have denied somebody
    // what everybody may, so that then the owner's permissions alone stay.
    mode_t permissions = status.st_mode & 0700;
    if (errno == ENOTSUP)
        acl_equiv_mode(acl.get(), &permissions);
    fchmod(descriptor, permissions);
}
