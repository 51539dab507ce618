// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace DataManager {

/// The instance behind a static accessor: what `instance` points at, or else what `create` makes and `instance` then
/// keeps. When the creation throws, `instance` stays null. The object is never destroyed. `create` is called where the
/// private constructor is accessible, so it is a lambda of the accessor:
/// `return singleton(m_instance, [] { return new CaseData; });`
template <class Object, class Create>
Object* singleton(Object*& instance, Create create)
{
    if (instance == nullptr) {
        instance = create();
    }
    return instance;
}

} // namespace DataManager
