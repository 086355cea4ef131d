#pragma once

#include <QHash>
#include <QString>

// The answer of a costly function of a text, worked out once for each text: a run reads the
// same few texts for every row and candidate. At most 4,096 answers are kept, so that a file of
// endless different texts cannot fill the memory; the reference is good until the next call.
template <typename Answer, typename Work>
const Answer &memoized(QHash<QString, Answer> &known, const QString &text, Work work)
{
    auto it = known.constFind(text);
    if (it == known.constEnd()) {
        if (known.size() >= 4096)
            known.clear();
        it = known.insert(text, work(text));
    }
    return *it;
}
