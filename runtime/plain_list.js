// The plain list: offers the whole interface that compiled menus call and shows them as nested lists of links.
// Looks, states and opening are left out; what is called for them is taken and not used.
(function (window, document) {
  'use strict';

  function create(tag, parent) {
    return parent.appendChild(document.createElement(tag));
  }

  // Numbers of pictures count from 0 over triples of name, width and height.
  function addPicture(parent, number, alternative) {
    if (number === null || number < 0) return;
    var table = window.nbrImagesColl, at = 3 * number;
    var picture = create('img', parent);
    picture.alt = alternative;
    picture.width = table[at + 1];
    picture.height = table[at + 2];
    picture.src = window.nbrMenuPath + window.nbrImagesPath + '/' + encodeURIComponent(table[at]);
  }

  // Names are markup, as their authors wrote them.
  function addName(parent, name) {
    if (name) create('span', parent).innerHTML = name;
  }

  function Item(menu, fields) {
    this.menu = menu;
    this.fields = fields;
    this.submenu = null;
  }

  Item.prototype.addSubmenu = function (type, when, where, how, unfold, align, direction, container, title,
                                        name, tooltip, picture) {
    this.submenu = new Menu(this.menu.pm, { name: name, tooltip: tooltip, picture: picture });
    return this.submenu;
  };

  Item.prototype.build = function (list) {
    var fields = this.fields, entry = create('li', list);
    var content = create(fields.url === null ? 'span' : 'a', entry);
    if (fields.url !== null) {
      content.href = fields.url;
      if (fields.target !== null) content.target = fields.target === 'new' ? '_blank' : fields.target;
    }
    if (fields.tooltip) content.title = fields.tooltip;
    addPicture(content, fields.picture, fields.name ? '' : fields.tooltip || fields.status);
    addName(content, fields.name);
    if (this.submenu) {
      addPicture(content, fields.submenuPicture, '');
      this.submenu.build(entry);
    }
  };

  // A main menu is its own top object.
  function Menu(top, title) {
    this.pm = top || this;
    this.title = title;
    this.items = [];
  }

  Menu.prototype.addFields = function (fields) {
    var item = new Item(this, fields);
    this.items.push(item);
    return item;
  };

  Menu.prototype.addItem = function (style1, style2, style3, name1, name2, name3, tooltip, status, command1,
                                     command2, command3, url, target) {
    return this.addFields({
      name: name1, tooltip: tooltip, picture: null, submenuPicture: null, status: status, url: url, target: target
    });
  };

  Menu.prototype.addItemWithImages = function (style1, style2, style3, name1, name2, name3, tooltip, picture1,
                                               picture2, picture3, place1, place2, place3, submenuPicture1,
                                               submenuPicture2, submenuPicture3, status, command1, command2,
                                               command3, url, target) {
    return this.addFields({
      name: name1, tooltip: tooltip, picture: picture1, submenuPicture: submenuPicture1, status: status, url: url,
      target: target
    });
  };

  Menu.prototype.build = function (parent) {
    var title = this.title;
    if (title.name || (title.picture !== null && title.picture >= 0)) {
      var heading = create('strong', parent);
      if (title.tooltip) heading.title = title.tooltip;
      addPicture(heading, title.picture, title.name ? '' : title.tooltip);
      addName(heading, title.name);
    }
    var list = create('ul', parent);
    for (var i = 0; i < this.items.length; i++) this.items[i].build(list);
  };

  // Builds what was registered, at the place of the call in the page.
  Menu.prototype.buildMenu = function () {
    var frame = document.createDocumentFragment(), place = document.currentScript;
    var navigation = create('nav', frame);
    navigation.setAttribute('data-nbr-menu', window.nbrMenuName);
    this.build(navigation);
    if (place && place.parentNode) {
      place.parentNode.insertBefore(frame, place);
    } else {
      document.body.appendChild(frame);
    }
  };

  window.nbrCreateCSS = function () {};

  window.nbrCreateMenu = function (popup, when, where, how, unfold, align, movable, drifty, corner, horizontal,
                                   vertical, sticky, type, container, title, name, tooltip, picture) {
    return new Menu(null, { name: name, tooltip: tooltip, picture: picture });
  };

  // A list is never hidden, so that showing it is to bring it into view.
  window.nbrShowMenu = function (name) {
    var menus = document.querySelectorAll('[data-nbr-menu]');
    for (var i = 0; i < menus.length; i++) {
      if (menus[i].getAttribute('data-nbr-menu') === name) menus[i].scrollIntoView();
    }
  };
}(window, document));
