// versions: 6-8
// What bare names mean within `with` in a class, in classes that extend the player's, and where
// something else is called like the class.
class Pen extends MovieClip {
  var count = 1; var size = 2;
  static var made = 3;
  function draw(o, size) {
    with (o) {
      count += 10; trace(count + "," + size + "," + made); made++;
      _alpha = 50; go();
      with ({count: 100}) { trace(count++ + "," + count); made = count + 5; }
      var mine = count;
    }
    return count + "," + this.size + "," + mine + "," + made + "," + _alpha;
  }
  function go() { trace("own go"); }
  function turn(clip) { with (clip) { gotoAndStop(4); _x = 7; } return _currentframe + "," + clip._currentframe + "," + clip._x; }
}
Object.registerClass("Sym", Pen);
stylus = _root.attachMovie("Sym", "stylus", 3);
trace(stylus.draw({count: 5, go: function () { trace("its go"); }}, "local")); //= 15,local,3
                             //= its go
                             //= 100,101
                             //= 1,2,15,106,50
trace(stylus.draw({}, 6));      //= 11,6,106
                             //= own go
                             //= 100,101
                             //= 11,2,11,106,50
trace(stylus.turn(clip));       //= 1,4,7
class Dragged extends MovieClip {
  function go() { startDrag(true, 0, 0, 100, 100); _x = 500; stopDrag(); startDrag(false); stopDrag(); return _name; }
  function out(clip) { with (clip) { startDrag(false, 1, 2, 3, 4); } stopDrag(); return clip._name; }
}
Object.registerClass("Sym", Dragged);
moved = _root.attachMovie("Sym", "moved", 4);
trace(moved.go() + moved.out(clip)); //= movedclip
class Fault extends Error {
  function Fault(m) { super(m); message = m + "!"; name = "Fault"; }
  function tell() { return name + message; }
}
trace(new Fault("f").tell()); //= Faultf!
class List extends Array {
  function add(v) { push(v); return length; }
  function text() { return join("-") + concat([9]).length + length("four") + substring("abc", 2, 1); }
}
list = new List(); list.add("a"); trace(list.add("b") + list.text()); //= 2a-b34b
class Tree extends XML {
  function first() { ignoreWhite = true; parseXML("<a> <b/> </a>"); return firstChild.firstChild.nodeName + firstChild.childNodes.length; }
}
trace(new Tree().first());   //= b1
class Plain {
  function has(n) { return hasOwnProperty(n); }
  function toString() { return "plain"; }
  function asText() { return toString() + "."; }
}
p = new Plain(); p.q = 1; trace(p.has("q") + "," + p.has("r") + p.asText()); //= true,falseplain.
class Same { static var Same = 5; static var n = 1; static function get() { return Same + n; } }
trace(Same.get());           //= 6
class box.Deep { static var box = "own"; static function get(Deep) { return box + Deep; } }
trace(box.Deep.get(1));      //= own1
class Counts { static var n = 0; static function up(Counts) { n += Counts; return n; } }
trace(Counts.up(4));         //= 4
