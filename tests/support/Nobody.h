// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QVector>

#include <algorithm>
#include <grp.h>
#include <unistd.h>

/// Makes this process, when it is root's, one of the user nobody while it lives: root may read and write everywhere.
class Nobody
{
public:
    Nobody() : m_wasRoot(::geteuid() == 0)
    {
        m_groups.resize(std::max(0, ::getgroups(0, nullptr)));
        if (m_wasRoot && (::getgroups(m_groups.size(), m_groups.data()) < 0 || ::setgroups(0, nullptr) != 0 ||
                          ::setresgid(id, id, 0) != 0 || ::setresuid(id, id, 0) != 0)) {
            qFatal("cannot become nobody");
        }
    }
    ~Nobody()
    {
        if (m_wasRoot && (::setresuid(0, 0, 0) != 0 || ::setresgid(0, 0, 0) != 0 ||
                          ::setgroups(size_t(m_groups.size()), m_groups.data()) != 0)) {
            qFatal("cannot become root again");
        }
    }
    Nobody(const Nobody&) = delete;
    Nobody& operator=(const Nobody&) = delete;

private:
    static constexpr uid_t id = 65534;

    bool m_wasRoot;
    QVector<gid_t> m_groups;
};
