// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <support/RecordFaults.h>

#include <basemodule/GlobalHelper.h>
#include <basemodule/SerializerBase.h>

#include <QMetaObject>

#include <dlfcn.h>
#include <new>

namespace {

template <class Function>
Function next(const char* mangledName)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, mangledName));
}

} // namespace

QObject* QMetaObject::newInstance(QGenericArgument a0, QGenericArgument a1, QGenericArgument a2, QGenericArgument a3,
                                  QGenericArgument a4, QGenericArgument a5, QGenericArgument a6, QGenericArgument a7,
                                  QGenericArgument a8, QGenericArgument a9) const
{
    using Argument = QGenericArgument;
    using Function = QObject* (*)(const QMetaObject*, Argument, Argument, Argument, Argument, Argument, Argument,
                                  Argument, Argument, Argument, Argument);
    static const auto original = next<Function>("_ZNK11QMetaObject11newInstanceE16QGenericArgumentS0_S0_S0_S0_S0_S0_S0_"
                                                "S0_S0_");
    RecordFaults& faults = RecordFaults::now();
    if (faults.creationsLeft == 0) {
        faults.creationsLeft = -1;
        throw std::bad_alloc();
    }
    faults.creationsLeft -= faults.creationsLeft > 0 ? 1 : 0;
    return faults.isCreationFailing ? nullptr : original(this, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9);
}

QByteArray QJsonHelper::SerializerBase::serialize(const void* object, const QMetaObject& meta, bool isIndented)
{
    using Function = QByteArray (*)(const void*, const QMetaObject&, bool);
    static const auto original = next<Function>("_ZN11QJsonHelper14SerializerBase9serializeEPKvRK11QMetaObjectb");
    RecordFaults& faults = RecordFaults::now();
    if (faults.serializationsLeft == 0) {
        throw std::bad_alloc();
    }
    faults.serializationsLeft -= faults.serializationsLeft > 0 ? 1 : 0;
    return faults.isSerializationFailing ? QByteArray() : original(object, meta, isIndented);
}

bool BaseModule::GlobalHelper::readFile(QString path, QByteArray& out)
{
    using Function = bool (*)(QString, QByteArray&);
    static const auto original = next<Function>("_ZN10BaseModule12GlobalHelper8readFileE7QStringR10QByteArray");
    if (RecordFaults::now().isReadingShort) {
        throw std::bad_alloc();
    }
    return original(path, out);
}
