#include "CheckFacts.h"

#include "Companions.h"
#include "ForeignText.h"
#include "MessageLog.h"

#include <kv_config_gui_mvc/companion_check.h>

#include <cstdlib>
#include <memory>
#include <utility>

namespace
{

/// The innermost; null outside checks.
RunningCheck* running = nullptr;
/// The number of the last one that was begun.
int begun = 0;

template <class Facts>
std::unique_ptr<Facts, void (*)(void*)> owned(Facts* facts)
{
    return {facts, &std::free};
}

QString text(const char* bytes)
{
    return bytes ? foreignText(bytes) : QString();
}

} // namespace

RunningCheck::RunningCheck() : m_outer(std::exchange(running, this)), m_number(++begun)
{
    messageLog().told.clear();
    messageLog().limits.clear();
}

RunningCheck::~RunningCheck()
{
    running = m_outer;
}

std::optional<MessageFacts> RunningCheck::takeFacts()
{
    return running ? std::exchange(running->m_next, std::nullopt) : std::nullopt;
}

bool RunningCheck::isLast()
{
    return running && running->m_number == begun;
}

bool RunningCheck::isOvertaken()
{
    return running && running->m_number != begun;
}

void tellMessageAbout(const KvMvcMessageAbout* about)
{
    if (!running || !about) {
        return;
    }
    try {
        // Members that the encoder does not have yet are zeros in the copy.
        const auto copy = owned(kvMvcCopyAbout(about));
        running->m_next.reset();
        if (copy) {
            running->m_next =
                MessageFacts{copy->kind, text(copy->rule), text(copy->setting), copy->view};
        }
    } catch (...) {
        // The encoder is between here and whoever could take it.
    }
}

void tellLimitUse(const KvMvcLimitUse* use)
{
    if (!RunningCheck::isLast() || !use) {
        return;
    }
    try {
        if (const auto copy = owned(kvMvcCopyLimitUse(use))) {
            messageLog().limits.append(LimitUse{
                copy->view, text(copy->name ? localized(copy->name) : nullptr), text(copy->unit),
                text(copy->rule), text(copy->level), copy->used, copy->limit});
        }
    } catch (...) {
    }
}
