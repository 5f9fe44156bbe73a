-- Profiles, teams, projects, tasks, tracked time, clients and trips.
--
-- Row-level security is switched on in the migration that creates a table, so no table is ever
-- open without policies, not even between this migration and the one that adds them. Privileges: anon gets nothing on
-- application data; authenticated gets select/insert/update/delete and the policies decide which
-- rows; service_role gets everything and bypasses the policies. Hosted backends may hand anon
-- rights on new tables through default privileges, hence the explicit revokes.

create or replace function app.touch_updated_at() returns trigger
    language plpgsql
as $$
begin
    new.updated_at := now();
    return new;
end
$$;
revoke all on function app.touch_updated_at() from public;

create table public.profiles (
    id uuid primary key references auth.users (id) on delete cascade,
    email text,
    display_name text,
    default_hourly_rate numeric,
    currency text default 'EUR',
    language text,
    travel jsonb check (jsonb_typeof(travel) = 'object'),
    onboarding jsonb check (jsonb_typeof(onboarding) = 'object'),
    onboarding_complete boolean not null default false,
    timezone text,
    created_at timestamptz not null default now(),
    updated_at timestamptz not null default now()
);

create table public.teams (
    id uuid primary key default gen_random_uuid(),
    owner_id uuid not null default auth.uid() references auth.users (id) on delete cascade,
    name text not null check (btrim(name) <> ''),
    created_at timestamptz not null default now()
);
create index teams_owner_id_idx on public.teams (owner_id);

create table public.team_members (
    team_id uuid not null references public.teams (id) on delete cascade,
    user_id uuid not null references auth.users (id) on delete cascade,
    email text not null,
    role text not null check (role in ('owner', 'editor', 'viewer')),
    invited_at timestamptz default now(),
    accepted_at timestamptz,
    primary key (team_id, user_id)
);
create index team_members_user_id_idx on public.team_members (user_id);

create table public.projects (
    id uuid primary key default gen_random_uuid(),
    user_id uuid not null default auth.uid(),
    team_id uuid references public.teams (id) on delete set null,
    name text not null check (btrim(name) <> ''),
    description text,
    hourly_rate numeric,
    total_price numeric,
    status text not null default 'active' check (status in ('active', 'archived', 'completed')),
    created_at timestamptz not null default now(),
    updated_at timestamptz not null default now(),
    billing jsonb check (billing is null
                         or (jsonb_typeof(billing) = 'object'
                             and coalesce(billing ->> 'model' in ('hourly', 'fixed', 'per_unit', 'daily'), false)))
);
create index projects_user_id_idx on public.projects (user_id);
create index projects_team_id_idx on public.projects (team_id);

create table public.tasks (
    id uuid primary key default gen_random_uuid(),
    user_id uuid not null default auth.uid(),
    project_id uuid not null references public.projects (id) on delete cascade,
    title text not null check (btrim(title) <> ''),
    description text,
    status text not null default 'not_started' check (status in ('not_started', 'in_progress', 'completed')),
    priority text not null default 'medium' check (priority in ('low', 'medium', 'high')),
    -- Older clients wrote full timestamps here, newer ones a plain day; both start with the day.
    due_date text check (due_date ~ '^\d{4}-\d{2}-\d{2}'),
    hourly_rate numeric,
    total_price numeric,
    time_spent_seconds bigint not null default 0 check (time_spent_seconds >= 0),
    started_at timestamptz,
    created_at timestamptz not null default now(),
    updated_at timestamptz not null default now(),
    attachments jsonb check (jsonb_typeof(attachments) in ('object', 'array')),
    billing jsonb check (billing is null
                         or (jsonb_typeof(billing) = 'object'
                             and coalesce(billing ->> 'model' in ('hourly', 'fixed', 'per_unit', 'daily'), false)))
);
create index tasks_project_id_idx on public.tasks (project_id);
create index tasks_user_id_idx on public.tasks (user_id);

create table public.time_entries (
    id uuid primary key default gen_random_uuid(),
    user_id uuid not null default auth.uid(),
    task_id uuid not null references public.tasks (id) on delete cascade,
    project_id uuid not null references public.projects (id) on delete cascade,
    started_at timestamptz not null,
    ended_at timestamptz not null,
    duration_seconds bigint not null check (duration_seconds >= 0),
    logged_by_user_id uuid,
    logged_by_email text,
    created_at timestamptz not null default now(),
    check (ended_at >= started_at),
    -- Two devices stopping the same timer log the same run; the second insert must fail (23505).
    unique (task_id, started_at, ended_at)
);
create index time_entries_project_id_idx on public.time_entries (project_id);
create index time_entries_user_id_idx on public.time_entries (user_id);

create table public.clients (
    id uuid primary key default gen_random_uuid(),
    user_id uuid not null default auth.uid(),
    team_id uuid references public.teams (id) on delete set null,
    name text not null check (btrim(name) <> ''),
    email text,
    phone text,
    address text,
    vat_id text,
    kvk text,
    iban text,
    notes text,
    color_hex text,
    archived boolean not null default false,
    created_at timestamptz not null default now(),
    lat double precision,
    lng double precision,
    place_label text
);
create index clients_user_id_idx on public.clients (user_id);
create index clients_team_id_idx on public.clients (team_id);

create table public.trips (
    id uuid primary key default gen_random_uuid(),
    user_id uuid not null default auth.uid(),
    project_id uuid references public.projects (id) on delete set null,
    task_id uuid references public.tasks (id) on delete set null,
    client_id uuid references public.clients (id) on delete set null,
    started_at timestamptz not null,
    ended_at timestamptz,
    start_lat double precision,
    start_lng double precision,
    start_label text,
    end_lat double precision,
    end_lng double precision,
    end_label text,
    distance_m integer not null default 0 check (distance_m >= 0),
    route text,
    mode text not null default 'car' check (mode in ('car', 'bike', 'walk', 'transit', 'other')),
    source text not null default 'manual' check (source in ('phone', 'manual')),
    kind text not null default 'business' check (kind in ('business', 'private')),
    billable boolean not null default true,
    purpose text,
    created_at timestamptz not null default now(),
    updated_at timestamptz not null default now(),
    check (ended_at is null or ended_at >= started_at)
);
create index trips_user_id_idx on public.trips (user_id);
create index trips_project_id_idx on public.trips (project_id);
create index trips_task_id_idx on public.trips (task_id);
create index trips_client_id_idx on public.trips (client_id);

create trigger touch_updated_at before update on public.profiles
    for each row execute function app.touch_updated_at();
create trigger touch_updated_at before update on public.projects
    for each row execute function app.touch_updated_at();
create trigger touch_updated_at before update on public.tasks
    for each row execute function app.touch_updated_at();
create trigger touch_updated_at before update on public.trips
    for each row execute function app.touch_updated_at();

-- A profile for every account, also for accounts that existed before this migration (hosted).
create or replace function app.create_profile_for_user() returns trigger
    language plpgsql
    security definer
    set search_path = ''
as $$
begin
    insert into public.profiles (id, email, display_name, timezone)
    values (new.id, new.email, new.raw_user_meta_data ->> 'display_name', new.raw_user_meta_data ->> 'timezone')
    on conflict (id) do nothing;
    return new;
end
$$;
revoke all on function app.create_profile_for_user() from public;

create or replace trigger create_profile after insert on auth.users
    for each row execute function app.create_profile_for_user();

insert into public.profiles (id, email, display_name, timezone)
select u.id, u.email, u.raw_user_meta_data ->> 'display_name', u.raw_user_meta_data ->> 'timezone'
from auth.users u
on conflict (id) do nothing;

-- Definer: the creator is not yet a member, so the policies on team_members would not let the
-- insert through, and the owner's address lives in auth.users.
create or replace function app.add_team_owner_as_member() returns trigger
    language plpgsql
    security definer
    set search_path = ''
as $$
begin
    insert into public.team_members (team_id, user_id, email, role, invited_at, accepted_at)
    select new.id, new.owner_id, coalesce(u.email, ''), 'owner', now(), now()
    from auth.users u
    where u.id = new.owner_id
    on conflict (team_id, user_id) do nothing;
    return new;
end
$$;
revoke all on function app.add_team_owner_as_member() from public;

create trigger add_owner_as_member after insert on public.teams
    for each row execute function app.add_team_owner_as_member();

-- A CHECK constraint cannot count rows, so the limit is a trigger that reports the same SQLSTATE.
-- Locking the team row serialises concurrent inserts into one team, so two of them cannot both see
-- nine members and both pass. Definer: the count must see every member whatever the caller may read.
create or replace function app.enforce_team_member_limit() returns trigger
    language plpgsql
    security definer
    set search_path = ''
as $$
declare
    members integer;
begin
    if tg_op = 'UPDATE' and new.team_id = old.team_id then
        return new;
    end if;
    perform 1 from public.teams where id = new.team_id for no key update;
    -- An existing member is about to fail on the primary key (or be skipped by ON CONFLICT), which
    -- is a better answer than "team full".
    if exists (select 1 from public.team_members where team_id = new.team_id and user_id = new.user_id) then
        return new;
    end if;
    select count(*) into members from public.team_members where team_id = new.team_id;
    if members >= 10 then
        raise exception 'team_member_limit: team % already has 10 members, the maximum', new.team_id
            using errcode = '23514';
    end if;
    return new;
end
$$;
revoke all on function app.enforce_team_member_limit() from public;

create trigger enforce_member_limit before insert or update of team_id on public.team_members
    for each row execute function app.enforce_team_member_limit();

-- An entry belongs to its task's project: derived here rather than trusted from the client, so the
-- project-based policies cannot be steered by naming another project than the task's.
create or replace function app.time_entry_project_from_task() returns trigger
    language plpgsql
    security definer
    set search_path = ''
as $$
declare
    task_project uuid;
begin
    select t.project_id into task_project from public.tasks t where t.id = new.task_id;
    if found then
        new.project_id := task_project;
    end if;
    return new;
end
$$;
revoke all on function app.time_entry_project_from_task() from public;

create trigger project_from_task before insert or update of task_id, project_id on public.time_entries
    for each row execute function app.time_entry_project_from_task();

-- Definer: the entries of a moved task may belong to users whose rows the mover cannot update,
-- and leaving any behind would split the task's time over two projects.
create or replace function app.move_time_entries_with_task() returns trigger
    language plpgsql
    security definer
    set search_path = ''
as $$
begin
    update public.time_entries set project_id = new.project_id
    where task_id = new.id and project_id <> new.project_id;
    return null;
end
$$;
revoke all on function app.move_time_entries_with_task() from public;

create trigger move_time_entries after update of project_id on public.tasks
    for each row when (new.project_id <> old.project_id)
    execute function app.move_time_entries_with_task();

alter table public.profiles enable row level security;
alter table public.teams enable row level security;
alter table public.team_members enable row level security;
alter table public.projects enable row level security;
alter table public.tasks enable row level security;
alter table public.time_entries enable row level security;
alter table public.clients enable row level security;
alter table public.trips enable row level security;

revoke all on public.profiles, public.teams, public.team_members, public.projects, public.tasks,
    public.time_entries, public.clients, public.trips from public, anon;
grant select, insert, update, delete on public.profiles, public.teams, public.team_members, public.projects,
    public.tasks, public.time_entries, public.clients, public.trips to authenticated;
grant all on public.profiles, public.teams, public.team_members, public.projects, public.tasks,
    public.time_entries, public.clients, public.trips to service_role;
