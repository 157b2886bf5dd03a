// SPDX-License-Identifier: MIT
// The browser's runtime: keeps a page as its session on the server wants it, and tells the session what the user does.

import './support.js';
import './style.js';
import './page.js';
import './motion.js';
import './absence.js';
import './tips.js';
import './events.js';
import './messages.js';
import './focus.js';
import './fields.js';
import './buttons.js';
import './tabs.js';
import './uploads.js';
import './layouts.js';
import './dialogs.js';
import './tables.js';
import { connect } from './connection.js';

/// The picture of the browser's tab comes last: nothing waits for it.
addEventListener('load', () => setTimeout(() => {
  const icon = document.querySelector('link[rel=icon][data-href]');
  if (icon) icon.href = icon.dataset.href;
}, 3000));

connect();
