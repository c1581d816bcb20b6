// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewModel.h"

#include "history/clips/ClipStore.h"
#include "panel/PanelModel.h"
#include "panel/PreviewFacts.h"
#include "panel/RowAppearance.h"
#include "paste/PasteStack.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vellumry {

namespace {

constexpr int codeTabWidth = 4;
constexpr int shortestTick = 20; // milliseconds

} // namespace

static_assert(static_cast<int>(PreviewModel::Body::Several) == static_cast<int>(PreviewContent::Body::several));
static_assert(static_cast<int>(PreviewModel::Body::Color) == static_cast<int>(PreviewContent::Body::color));

PreviewModel::PreviewModel(PanelModel& model, Hooks hooks, QObject* parent)
    : QObject(parent)
    , m_model(&model)
    , m_hooks(std::move(hooks))
    , m_text(model.store()) {
    if (m_hooks.images) {
        m_picture = std::make_unique<PreviewPicture>(model.store(), *m_hooks.images);
        connect(m_picture.get(), &PreviewPicture::changed, this, &PreviewModel::pictureChanged);
    }
    m_tick.setSingleShot(true);
    connect(&m_tick, &QTimer::timeout, this, &PreviewModel::tick);
    connect(&m_text, &PreviewText::charactersChanged, this, &PreviewModel::refresh);
    connect(&m_text, &PreviewText::hitChanged, this, &PreviewModel::hitChanged);
    connect(m_model, &PanelModel::sectionsChanged, this, &PreviewModel::refresh);
    connect(m_model, &PanelModel::selectionChanged, this, &PreviewModel::refresh);
    connect(m_model, &PanelModel::queryChanged, this, &PreviewModel::refresh);
    connect(m_model, &PanelModel::fileStatusesChanged, this, &PreviewModel::refresh);
    connect(m_model, &PanelModel::transformChanged, this, &PreviewModel::refresh);
    refresh();
}

PreviewModel::~PreviewModel() = default;

QQuickImageProvider* PreviewModel::makePictureProvider() {
    return m_picture ? m_picture->makeProvider() : nullptr;
}

void PreviewModel::setStack(PasteStack& stack) {
    m_stack = &stack;
    connect(&stack, &PasteStack::changed, this, &PreviewModel::refresh);
    refresh();
}

void PreviewModel::setDormant(bool isDormant) {
    m_isDormant = isDormant;
    if (!isDormant) {
        refresh();
        return;
    }
    m_factsOf.reset();
    m_lookedAt.clear();
    m_facts.clear();
    show({});
}

PreviewSources PreviewModel::sources() const {
    PreviewSources sources;
    sources.clips = m_model->selectedClips();
    sources.files = [this](const QUuid& id) { return m_model->fileStatuses().value(id); };
    sources.facts = [this](const QUuid& id) { return m_factsOf == id ? m_facts : std::vector<FileFacts>(); };
    sources.isReading = m_hooks.isReadingText;
    sources.isStackActive = m_stack && m_stack->isActive();
    sources.showsTransforms = m_model->isTransformListOpen();
    if (sources.clips.size() == 1 && m_content.ids == std::vector{sources.clips.front()->id})
        sources.characters = m_text.characters();
    return sources;
}

void PreviewModel::refresh() {
    if (!m_isDormant)
        show(previewContent(sources()));
}

void PreviewModel::show(PreviewContent content) {
    const bool isSame = content == m_content;
    m_content = std::move(content);
    const QString query = m_isDormant ? QString() : m_model->query();
    const bool isOtherQuery = std::exchange(m_query, query) != query;
    m_text.setQuery(m_query);
    showBody();
    if (!isSame || isOtherQuery)
        Q_EMIT marksChanged();
    if (isSame)
        return;
    m_entries.setRows(m_content.entries);
    m_buttons.setRows(m_content.buttons);
    tick();
    Q_EMIT contentChanged();
    Q_EMIT pictureChanged();
}

/// Loads what the body shows, and lets go of what others showed.
void PreviewModel::showBody() {
    using Shown = PreviewContent::Body;
    const ClipRef clip = shownClip();
    m_thumbnail = clip && m_content.body == Shown::image ? row::thumbnailOf(*clip) : QString();
    if (clip && m_content.body == Shown::text) {
        const auto index = static_cast<std::size_t>(m_model->transformIndex());
        m_text.show(clip, m_content.showsTransforms ? std::optional(PanelModel::transformList[index]) : std::nullopt,
                    m_content.isFixedWidth ? codeTabWidth : 0);
    } else {
        m_text.clear();
    }
    if (m_picture && clip && m_content.body == Shown::image)
        m_picture->show(clip->id);
    else if (m_picture)
        m_picture->clear();
    lookAtFiles();
}

ClipRef PreviewModel::shownClip() const {
    return m_content.ids.size() == 1 ? m_model->store().find(m_content.ids.front()) : nullptr;
}

/// Sizes and folders, once the model knows where the files are.
void PreviewModel::lookAtFiles() {
    if (m_content.body != PreviewContent::Body::file)
        return;
    const QUuid id = m_content.ids.front();
    const std::vector<FileStatus> statuses = m_model->fileStatuses().value(id);
    QStringList paths;
    for (const FileStatus& status : statuses) {
        if (paths.size() == previewListLength)
            break;
        paths.append(status.path().value_or(QString()));
    }
    if (paths.isEmpty() || (m_factsOf == id && m_lookedAt == paths))
        return;
    m_factsOf = id;
    m_lookedAt = paths;
    m_facts.clear();
    findFacts(id, std::move(paths));
}

QCoro::Task<void> PreviewModel::findFacts(QUuid id, QStringList paths) {
    const QPointer<PreviewModel> self(this);
    auto looking = fileFacts(paths);
    const auto facts = co_await looking;
    if (!self || !facts || m_factsOf != id || m_lookedAt != paths)
        co_return;
    m_facts = *facts;
    refresh();
}

/// Tells the time that is left, and comes back when it reads otherwise.
void PreviewModel::tick() {
    m_tick.stop();
    QString countdown;
    if (m_content.expiresAt) {
        const double left = *m_content.expiresAt - m_hooks.clock();
        countdown = countdownText(left);
        if (left > 0) {
            const double untilOther = left - (std::ceil(left) - 1);
            m_tick.start(std::max(shortestTick, static_cast<int>(std::lround(untilOther * 1000))));
        }
    }
    if (std::exchange(m_countdown, countdown) != countdown)
        Q_EMIT countdownChanged();
}

void PreviewModel::readText() {
    if (const ClipRef clip = shownClip(); clip && m_content.offersReading)
        m_hooks.readText(clip->id);
    refresh();
}

void PreviewModel::setRoom(int width, int height) {
    if (m_picture)
        m_picture->setRoom(QSize(width, height));
}

void PreviewModel::perform(int action) {
    using Action = PreviewContent::Action;
    const auto wanted = static_cast<Action>(action);
    const auto isOffered = [wanted](const PreviewContent::Button& button) { return button.action == wanted; };
    if (std::ranges::none_of(m_content.buttons, isOffered))
        return;
    switch (wanted) {
    case Action::mergeAndPaste:
        m_model->merge(PanelModel::MergeAction::paste);
        break;
    case Action::pasteOneByOne:
    case Action::stopStack:
        m_model->pasteSelectedOneByOne();
        break;
    case Action::togglePin:
        m_model->togglePin();
        break;
    case Action::remove:
        m_model->deleteSelected();
        break;
    case Action::transform:
    case Action::closeTransforms:
        m_model->toggleTransforms();
        break;
    case Action::pasteTransformed:
        m_model->handle(PanelModel::Command::enter);
        break;
    case Action::readText:
        readText();
        break;
    case Action::paste:
    case Action::pasteFileName:
    case Action::pastePlain:
    case Action::pasteTextInImage:
    case Action::showFiles:
    case Action::openLink:
        if (const ClipRef clip = shownClip())
            performOnClip(wanted, clip);
        break;
    }
}

void PreviewModel::performOnClip(PreviewContent::Action action, const ClipRef& clip) {
    using Action = PreviewContent::Action;
    switch (action) {
    case Action::pasteFileName:
        m_model->pasteFileNames(clip);
        break;
    case Action::pastePlain:
        m_model->pasteClip(clip, true);
        break;
    case Action::pasteTextInImage:
        m_model->pasteTextInImage(clip);
        break;
    case Action::showFiles:
        m_model->showFiles(clip);
        break;
    case Action::openLink:
        m_model->openLink(clip);
        break;
    default:
        m_model->pasteClip(clip, false);
        break;
    }
}

/// A text has its lines; everything else that is said in words stands here.
QString PreviewModel::text() const {
    return m_content.body == PreviewContent::Body::text ? QString() : m_content.text;
}

QStringList PreviewModel::notations() const {
    QStringList notations;
    const PreviewContent::Color& color = m_content.color;
    for (const QString& notation : {color.text, color.hex, color.rgb, color.hsl}) {
        if (!notation.isEmpty() && !notations.contains(notation, Qt::CaseInsensitive))
            notations.append(notation);
    }
    return notations;
}

bool PreviewModel::isPictureShown() const {
    return m_picture && m_content.body == PreviewContent::Body::image && m_picture->imageID() == m_content.ids.front();
}

QString PreviewModel::picture() const {
    return isPictureShown() && !m_picture->hasFailed()
               ? QStringLiteral("image://preview/") + QString::number(m_picture->number())
               : QString();
}

QSize PreviewModel::pictureSize() const {
    return isPictureShown() ? m_picture->image().size() : QSize(0, 0);
}

bool PreviewModel::hasNoPicture() const {
    return m_content.body == PreviewContent::Body::image && m_thumbnail.isEmpty() &&
           (!m_picture || (isPictureShown() && m_picture->hasFailed()));
}

} // namespace vellumry
