// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/RecordCoverage.h>

#include <QByteArray>
#include <QList>
#include <QMetaProperty>
#include <QObject>

#include <cmath>
#include <cstring>
#include <limits>

namespace DataManager {

namespace {

enum class Form : int
{
    Text,
    Flag,
    Whole,
    Number,
    NumberList,
    Record,
    RecordList,
    Any
};

struct Member
{
    QByteArray name;
    Form form;
};

using RecordForm = QVector<Member>;

Form formOf(const QMetaProperty& property, bool hasRecords)
{
    const int type = property.userType();
    switch (type) {
    case QMetaType::QString:
        return Form::Text;
    case QMetaType::Bool:
        return Form::Flag;
    case QMetaType::Int:
        return Form::Whole;
    case QMetaType::Double:
        return Form::Number;
    }
    if (type == qMetaTypeId<QList<double>>()) {
        return Form::NumberList;
    }
    const QByteArray name(property.typeName());
    if (!hasRecords || !name.contains("QSharedPointer<")) {
        return Form::Any;
    }
    return name.startsWith("QSharedPointer<") ? Form::Record : Form::RecordList;
}

QVector<RecordForm> formsOf(const QVector<const QMetaObject*>& classes)
{
    QVector<RecordForm> forms;
    for (const QMetaObject* const meta : classes) {
        RecordForm form;
        for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
            form.append({meta->property(i).name(), formOf(meta->property(i), meta != classes.last())});
        }
        forms.append(form);
    }
    return forms;
}

bool isBlank(char character)
{
    return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

bool endsToken(char character)
{
    return character == ',' || character == ']' || character == '}' || character == '\0' || isBlank(character);
}

/// Walks over a text that parses as JSON. Should it not, the walk fails or ends early; it never leaves the text.
class Walk
{
public:
    Walk(const QByteArray& json, QVector<RecordForm> forms)
        : m_position(json.constData()), m_end(m_position + json.size()), m_forms(std::move(forms))
    {
        if (json.startsWith("\xef\xbb\xbf")) {
            m_position += 3;
        }
    }

    /// `isWhole` asks for all members.
    bool walkRecord(int level, bool isWhole);
    qint64 valueCount() const { return m_valueCount; }

private:
    char next();
    bool take(char character);
    bool takeWord(const char* word);
    QByteArray takeToken();
    bool walkText();
    bool walkWhole();
    bool walkNumber();
    bool walkAny();
    bool walkValue(Form form, int level);
    template <class WalkElement>
    bool walkList(WalkElement walkElement);
    int walkName(const RecordForm& form);

    const char* m_position;
    const char* m_end;
    QVector<RecordForm> m_forms;
    qint64 m_valueCount = 0;
};

/// The next character that is no white space, which stays; NUL at the end.
char Walk::next()
{
    while (m_position < m_end && isBlank(*m_position)) {
        ++m_position;
    }
    return m_position < m_end ? *m_position : '\0';
}

bool Walk::take(char character)
{
    if (next() != character) {
        return false;
    }
    ++m_position;
    return true;
}

bool Walk::takeWord(const char* word)
{
    return takeToken() == word;
}

/// What stands up to the next separator. Valid while the text is.
QByteArray Walk::takeToken()
{
    next();
    const char* const begin = m_position;
    while (m_position < m_end && !endsToken(*m_position)) {
        ++m_position;
    }
    return QByteArray::fromRawData(begin, int(m_position - begin));
}

bool Walk::walkText()
{
    if (!take('"')) {
        return false;
    }
    while (m_position < m_end && *m_position != '"') {
        m_position += *m_position == '\\' && m_position + 1 < m_end ? 2 : 1;
    }
    return take('"');
}

bool Walk::walkWhole()
{
    bool isNumber = false;
    const double number = takeToken().toDouble(&isNumber);
    return isNumber && number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max() &&
           std::trunc(number) == number;
}

/// Some doubles are written as texts.
bool Walk::walkNumber()
{
    if (next() == '"') {
        return walkText();
    }
    const QByteArray token = takeToken();
    return !token.isEmpty() && (token.at(0) == '-' || (token.at(0) >= '0' && token.at(0) <= '9'));
}

/// Not by recursion: nobody knows how deep the value is.
bool Walk::walkAny()
{
    int depth = 0;
    do {
        const char character = next();
        if (character == '"') {
            walkText();
        } else if (character == '{' || character == '[') {
            ++depth;
            ++m_position;
        } else if (character == '}' || character == ']') {
            --depth;
            ++m_position;
        } else if (character == ',' || character == ':') {
            ++m_position;
        } else if (takeToken().isEmpty()) {
            return false;
        }
    } while (depth > 0);
    return depth == 0;
}

template <class WalkElement>
bool Walk::walkList(WalkElement walkElement)
{
    if (!take('[')) {
        return false;
    }
    if (take(']')) {
        return true;
    }
    do {
        if (!walkElement()) {
            return false;
        }
    } while (take(','));
    return take(']');
}

bool Walk::walkValue(Form form, int level)
{
    const auto walkNumberElement = [this] {
        ++m_valueCount;
        return walkNumber();
    };
    const auto walkRecordElement = [this, level] {
        return next() == 'n' ? takeWord("null") : walkRecord(level + 1, false);
    };
    switch (form) {
    case Form::Text:
        return walkText();
    case Form::Flag:
        return next() == 't' ? takeWord("true") : takeWord("false");
    case Form::Whole:
        return walkWhole();
    case Form::Number:
        return walkNumber();
    case Form::NumberList:
        return walkList(walkNumberElement);
    case Form::Record:
        return walkRecordElement();
    case Form::RecordList:
        return walkList(walkRecordElement);
    case Form::Any:
        return walkAny();
    }
    return false;
}

/// The place of a member with its colon; -1 when it is not known.
int Walk::walkName(const RecordForm& form)
{
    next();
    const char* const begin = m_position + 1;
    if (!walkText()) {
        return -1;
    }
    const auto length = m_position - 1 - begin;
    for (int i = 0; i < form.size(); ++i) {
        const QByteArray& name = form.at(i).name;
        if (name.size() == length && std::memcmp(name.constData(), begin, size_t(length)) == 0) {
            return take(':') ? i : -1;
        }
    }
    return -1;
}

bool Walk::walkRecord(int level, bool isWhole)
{
    const RecordForm& form = m_forms.at(level);
    QVector<bool> isSeen(form.size(), false);
    if (!take('{')) {
        return false;
    }
    if (next() != '}') {
        do {
            const int place = walkName(form);
            if (place < 0 || isSeen.at(place) || !walkValue(form.at(place).form, level)) {
                return false;
            }
            isSeen[place] = true;
        } while (take(','));
    }
    return take('}') && !(isWhole && isSeen.contains(false));
}

} // namespace

RecordCoverage recordCoverage(const QByteArray& json, const QVector<const QMetaObject*>& classes)
{
    Walk walk(json, formsOf(classes));
    const bool isComplete = walk.walkRecord(0, true);
    return {isComplete, walk.valueCount()};
}

} // namespace DataManager
