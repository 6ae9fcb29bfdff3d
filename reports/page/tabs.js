// tabs.js - the parts of the page, one of which is shown; a part is made when it is shown for the first time.

const tabs = []; // { name, title, fill, button, panel, isFilled }

function addTab(name, title, fill) {
  const button = makeButton(title, { role: 'tab', id: `tab-${name}`, 'aria-controls': name, tabindex: -1 },
    () => showTab(name));
  const panel = make('section', { role: 'tabpanel', id: name, 'aria-labelledby': `tab-${name}` });
  tabs.push({ name, title, fill, button, panel, isFilled: false });
  byId('tabs').append(button);
  byId('panels').append(panel);
}

function showTab(name) {
  for (const tab of tabs) {
    const isShown = tab.name === name;
    tab.button.setAttribute('aria-selected', isShown);
    tab.button.tabIndex = isShown ? 0 : -1;
    tab.panel.hidden = !isShown;
    if (isShown && !tab.isFilled) {
      tab.isFilled = true;
      tab.fill(tab.panel);
    }
  }
}

/** The tab that a key leads to from another one; undefined for other keys. */
function tabAfter(index, key) {
  const last = tabs.length - 1;
  return {
    ArrowRight: tabs[index === last ? 0 : index + 1],
    ArrowLeft: tabs[index === 0 ? last : index - 1],
    Home: tabs[0],
    End: tabs[last],
  }[key];
}

function connectTabs() {
  byId('tabs').addEventListener('keydown', (event) => {
    const next = tabAfter(tabs.findIndex((tab) => tab.button === event.target), event.key);
    if (!next) return;
    event.preventDefault();
    showTab(next.name);
    next.button.focus();
  });
}
